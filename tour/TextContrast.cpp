#include "tour/SceneExceptions.h"
#include "tour/SceneItems.h"
#include "tour/SceneProperties.h"

#include <QHash>
#include <cmath>

namespace {

// WCAG 2.1, 1.4.3.
constexpr double leastContrast = 4.5;

// As WCAG 2.1 defines it.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

double effectiveOpacity(const QQuickItem& item)
{
    double opacity = 1;
    for (const QQuickItem* around = &item; around != nullptr; around = around->parentItem())
        opacity *= around->opacity();
    return opacity;
}

QColor over(const QColor& ink, double opacity, const QColor& ground)
{
    const double alpha = ink.alphaF() * opacity;
    const auto mixed = [&](double above, double below) { return alpha * above + (1 - alpha) * below; };
    return QColor::fromRgbF(static_cast<float>(mixed(ink.redF(), ground.redF())),
                            static_cast<float>(mixed(ink.greenF(), ground.greenF())),
                            static_cast<float>(mixed(ink.blueF(), ground.blueF())));
}

// The window with all texts in `color`. The program doesn't notice: bindings stay, and nothing runs
// meanwhile.
QImage drawnWithTextsIn(QQuickWindow& window, const std::vector<SceneItem>& texts, const QColor& color)
{
    std::vector<QVariant> before;
    for (const SceneItem& text : texts) {
        before.push_back(text.item->property("color"));
        text.item->setProperty("color", color);
    }
    const QImage drawn = window.grabWindow();
    for (std::size_t text = 0; text < texts.size(); ++text)
        texts[text].item->setProperty("color", before[text]);
    return drawn;
}

// The commonest colour of `ground` where `marked` differs from it; absent: they are the same there.
std::optional<QColor> groundUnder(const QRect& place, const QImage& ground, const QImage& marked)
{
    QHash<QRgb, int> counts;
    const QRect part = place & ground.rect();
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            if (ground.pixel(x, y) != marked.pixel(x, y))
                ++counts[ground.pixel(x, y)];
    if (counts.isEmpty())
        return std::nullopt;
    return QColor(std::max_element(counts.keyValueBegin(), counts.keyValueEnd(), [](auto a, auto b) {
                      return a.second < b.second;
                  })->first);
}

} // namespace

QStringList SceneProperties::faintTexts(QQuickWindow& window)
{
    std::vector<SceneItem> texts = SceneItems::inSight(window);
    std::erase_if(texts, [](const SceneItem& seen) { return !seen.isText; });
    const QImage ground = drawnWithTextsIn(window, texts, Qt::transparent);
    const QImage marked = drawnWithTextsIn(window, texts, Qt::magenta);
    QStringList faults;
    for (const SceneItem& text : texts) {
        const auto below = groundUnder(text.part.toRect(), ground, marked);
        if (!below || !text.item->isEnabled() || isExcepted(*text.item, SceneException::Property::Contrast))
            continue;
        const auto ink = text.item->property("color").value<QColor>();
        const double ratio = contrast(over(ink, effectiveOpacity(*text.item), *below), *below);
        if (ratio < leastContrast)
            faults.append(QString("%1 has a contrast of %2:1, %3 on %4")
                              .arg(SceneItems::describe(text))
                              .arg(ratio, 0, 'f', 2)
                              .arg(ink.name(), below->name()));
    }
    return faults;
}
