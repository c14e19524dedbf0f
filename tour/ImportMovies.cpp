#include "tour/Chapters.h"
#include "tour/StoreFile.h"
#include "tour/Tour.h"
#include "tour/TourError.h"

#include <QFile>
#include <QSet>

namespace {

QStringList linesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw TourError(path + ": " + file.errorString());
    return QString::fromUtf8(file.readAll()).remove('\'').replace('\r', '\n').split('\n');
}

// How many records the lines make in a catalogue that has none of them: each title and year once, and every
// line without a title.
int recordsIn(const QStringList& lines)
{
    QSet<QString> titled;
    int untitled = 0;
    for (const QString& line : lines) {
        const QStringList fields = line.split('^');
        if (fields.value(4).isEmpty())
            ++untitled;
        else
            titled.insert(fields.value(4) + '^' + fields.value(9));
    }
    return untitled + static_cast<int>(titled.size());
}

int storedMovies()
{
    return StoreFile::number("SELECT count(*) FROM Movies");
}

void loadFile(Tour& tour, const QString& path)
{
    Visitor& visitor = tour.visitor;
    tour.choose("Import/Export");
    visitor.tap(button("Import Movies"));
    tour.device.setPickedFile(path);
    visitor.tap(button("Load File"));
    visitor.expect(text("File Loaded and Ready to Import"));
}

QString writeLetter(const TourHome& home)
{
    QFile letter(home.path("letter.txt"));
    if (!letter.open(QIODevice::WriteOnly) || letter.write("Dear Ida,\nsee you at the pictures.\n") < 0)
        throw TourError(letter.errorString());
    return letter.fileName();
}

} // namespace

void importMovies(Tour& tour)
{
    const QString& exchangeFile = tour.exchangeFile;
    Visitor& visitor = tour.visitor;
    const int before = storedMovies();

    tour.step("A letter is refused");
    loadFile(tour, writeLetter(tour.home));
    visitor.tap(button("OK"));
    visitor.tap(button("Import File"));
    visitor.expect(text("letter.txt Is The Incorrect Import File"));
    visitor.tap(button("OK"));
    visitor.expect(button("Menu"));
    visitor.expectThat("The letter came into the catalogue", [&] { return storedMovies() == before; });

    tour.step("An exchange file is loaded");
    tour.choose("Import/Export");
    tour.picture("import-export");
    visitor.tap(button("Import Movies"));
    visitor.tap(button("Import File"));
    visitor.settle();
    visitor.expectNo(text("Data Import"));
    tour.picture("import");
    tour.device.setPickedFile(exchangeFile);
    visitor.tap(button("Load File"));
    visitor.expect(text("File Loaded and Ready to Import"));
    visitor.tap(button("OK"));
    visitor.expectNo(text("Data Import"));
    tour.picture("file-loaded");

    const int records = recordsIn(linesOf(exchangeFile));
    tour.step(QString("Its %1 records are imported").arg(records));
    visitor.tap(button("Import File"));
    visitor.expect(text("Data Import Completed"));
    tour.picture("imported");
    visitor.tap(button("OK"));
    visitor.expect(button("Menu"));
    visitor.expectThat(QString("The catalogue has %1 movies, not %2 more").arg(storedMovies()).arg(records),
                       [&] { return storedMovies() == before + records; });
}
