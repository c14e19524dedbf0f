#include "tour/Tour.h"

#include "platform/foundation/Console.h"
#include "tour/Complaints.h"
#include "tour/SceneProperties.h"
#include "tour/TourError.h"

namespace {

constexpr QSize phone(390, 844);
constexpr QSize tablet(820, 1180);

} // namespace

Tour::Tour(QQuickView& window, TourDevice& device, const TourHome& home, QString exchangeFile,
           QString pictureStart)
    : visitor(window)
    , device(device)
    , home(home)
    , exchangeFile(std::move(exchangeFile))
    , window(window)
    , pictureStart(std::move(pictureStart))
{
    window.resize(phone);
}

void Tour::step(const QString& what)
{
    Complaints::endTourIfAny();
    console("- " + what);
}

void Tour::picture(const QString& screen)
{
    ++pictures;
    for (const QSize& size : {tablet, phone})
        for (const bool dark : {true, false})
            keep(screen, dark, size);
}

void Tour::keep(const QString& screen, bool dark, const QSize& size)
{
    device.setDark(dark);
    window.resize(size);
    const QString name = QString("%1-%2-%3-%4-%5.png")
                             .arg(pictureStart)
                             .arg(pictures, 2, 10, QChar('0'))
                             .arg(screen, dark ? "dark" : "light")
                             .arg(size.width());
    if (!visitor.look().save(name))
        throw TourError("The picture " + name + " cannot be kept");
    if (const QStringList faults = SceneProperties::faultsIn(window); !faults.isEmpty())
        throw TourError("The picture " + name + " shows faults:\n" + faults.join('\n'));
}

void Tour::choose(const QString& entry)
{
    visitor.tap(button("Menu"));
    visitor.reach(button(entry));
    visitor.tap(button(entry));
}
