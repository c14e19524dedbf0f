#include "tests/walk/WalkedProgram.h"

#include "model/Movies.h"
#include "resources/Resources.h"

#include <QBuffer>
#include <random>

namespace {

constexpr int films = 30;

QList<QStringList> realRecords()
{
    QFile file(MARROWVALE_SOURCE_DIR "/tests/data/Marrowvale.csv");
    QList<QStringList> records;
    if (file.open(QIODevice::ReadOnly))
        for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
            if (const QStringList fields = line.split('^'); fields.size() == 12)
                records.append(fields);
    return records;
}

QByteArray jpegCover()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    movieLogo().save(&buffer, "JPG");
    return bytes;
}

void store(NSManagedObjectContext& context, const QStringList& fields, std::mt19937& random)
{
    const auto movie = context.insert<Movies>();
    const auto sometimes = [&](int part, const QString& text) {
        return random() % static_cast<unsigned>(part) == 0 ? std::nullopt : std::optional(text);
    };
    movie->setMovieName(fields[4]);
    movie->setActors(sometimes(6, QString(fields[0]).replace(", ", "\n")));
    movie->setDirectors(sometimes(6, fields[2]));
    movie->setGenre(sometimes(12, random() % 15 == 0 ? QString() : fields[3]));
    movie->setProvider(sometimes(9, random() % 3 == 0 ? QString("Netflix") : QString("netflix")));
    movie->setRating(sometimes(12, fields[7]));
    movie->setYearReleased(fields[9].toShort());
    movie->setRunTime(fields[8].toShort());
    movie->setNotes(sometimes(2, QString("Seen with Ann")));
    const QDateTime day =
        QDate(2020 + static_cast<int>(random() % 3), 1 + static_cast<int>(random() % 12), 15).startOfDay();
    movie->setDateWatched(random() % 5 == 0 ? std::nullopt : std::optional(day));
    if (movie->dateWatched() && random() % 3 > 0) {
        movie->setWYear(static_cast<qint16>(day.date().year()));
        movie->setWMonth(static_cast<qint16>(day.date().month()));
        movie->setWDay(static_cast<qint16>(day.date().day()));
    } else {
        movie->setWYear(0);
    }
    if (random() % 4 == 0)
        movie->setFrontCover(jpegCover());
}

// A few films of the real catalogue, one of them twice.
QList<QStringList> chosenRecords(std::mt19937& random)
{
    const QList<QStringList> all = realRecords();
    QList<QStringList> chosen;
    for (int film = 0; film < films; ++film)
        chosen.append(all[static_cast<qsizetype>(random() % static_cast<unsigned>(all.size()))]);
    chosen.append(chosen.first());
    return chosen;
}

QString exchangeTextOf(const QList<QStringList>& records)
{
    QString text = "[MARROWVALE]\n";
    for (const QStringList& fields : records)
        text += fields.join('^') + "\n\n";
    return text;
}

} // namespace

WalkedProgram::WalkedProgram(unsigned seed)
    : console(home.path("console"))
{
    std::fflush(stdout);
    static_cast<void>(std::freopen(qPrintable(console.fileName()), "w", stdout));
    static_cast<void>(console.open(QIODevice::ReadOnly));
    std::mt19937 random(seed);
    auto& context = AppDelegate::shared().persistentContainer().viewContext();
    const QList<QStringList> records = chosenRecords(random);
    for (const QStringList& fields : records)
        store(context, fields, random);
    if (!context.save())
        qFatal("The catalogue for a walk cannot be stored");
    exchange = exchangeTextOf(records.mid(films - 2) + chosenRecords(random).mid(films - 2));
    QFile file(home.path("Marrowvale.csv"));
    if (file.open(QIODevice::WriteOnly))
        file.write(exchange.toUtf8());
    movieLogo().save(home.path("cover.png"));
    device.setCanSendText(random() % 4 > 0);
    device.setCameraAvailable(random() % 2 == 0);
    mainWindow = std::make_unique<MainWindow>();
    mainWindow->resize(390, 844);
    mainWindow->show();
    mainWindow->requestActivate();
}

QStringList WalkedProgram::consoleLines()
{
    std::fflush(stdout);
    return QString::fromUtf8(console.readAll()).split('\n', Qt::SkipEmptyParts);
}
