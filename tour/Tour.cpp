#include "tour/Tour.h"

#include "platform/foundation/Console.h"
#include "tour/Complaints.h"
#include "tour/TourError.h"

#include <QDir>

namespace {

constexpr QSize phone(390, 844);
constexpr QSize tablet(820, 1180);

} // namespace

Tour::Tour(QQuickView& window, TourDevice& device, const TourHome& home, QString outputFolder)
    : visitor(window)
    , device(device)
    , home(home)
    , window(window)
    , outputFolder(std::move(outputFolder))
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
    const QString name = QString("%1-%2-%3-%4.png")
                             .arg(pictures, 2, 10, QChar('0'))
                             .arg(screen, dark ? "dark" : "light")
                             .arg(size.width());
    if (!visitor.look().save(QDir(outputFolder).filePath(name)))
        throw TourError("The picture " + name + " cannot be kept");
}

void Tour::choose(const QString& entry)
{
    visitor.tap(button("Menu"));
    visitor.reach(button(entry));
    visitor.tap(button(entry));
}
