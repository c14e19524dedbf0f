#include "tests/walk/WalkedProgram.h"

#include "resources/Resources.h"
#include "tests/walk/WalkedFilms.h"

#include <random>

namespace {

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
        storeFilm(context, fields, random);
    if (!context.save())
        qFatal("The catalogue for a walk cannot be stored");
    exchange = exchangeTextOf(records.last(2) + chosenRecords(random).last(2));
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
