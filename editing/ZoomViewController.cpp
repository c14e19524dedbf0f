#include "editing/ZoomViewController.h"

#include "model/SharedValues.h"
#include "platform/services/Device.h"
#include "platform/services/SystemVersions.h"
#include "platform/services/TextSharing.h"
#include "platform/toolkit/UIImage.h"

namespace {

constexpr double itemMargin = 20;
constexpr double itemShare = 1.1;

QImage selectedCover()
{
    const auto& bytes = shared().CurrentMovie.frontCover;
    return bytes ? imageWithData(*bytes) : QImage();
}

} // namespace

void ZoomViewController::viewDidLoad()
{
    connect(pinchRec, &UIPinchGestureRecognizer::recognized, this, [this] { pinchedView(*pinchRec); });
    connect(panRec, &UIPanGestureRecognizer::recognized, this, [this] { draggedView(*panRec); });
    ShareButton->setTitle(QStringLiteral("Share"));
    if (Device::current().systemVersion >= SystemVersions::symbolImages)
        ShareButton->setImage(QStringLiteral("square.and.arrow.up"));
    ZoomCollectionView->setDataSource(this);
    ZoomCollectionView->reloadData();
}

void ZoomViewController::viewDidLayoutSubviews(double viewWidth)
{
    const double side = std::max(0.0, viewWidth - itemMargin) / itemShare;
    ZoomCollectionView->setItemSize({side, side});
}

int ZoomViewController::numberOfItemsInSection(int /*section*/)
{
    return 1;
}

QVariant ZoomViewController::cellForItemAt(const NSIndexPath& /*indexPath*/)
{
    ZoomCollectionViewCell cell;
    cell.ZoomImage = selectedCover();
    cell.layer = {.cornerRadius = 10, .borderWidth = 2, .borderColor = Qt::black};
    return QVariant::fromValue(cell);
}

void ZoomViewController::pinchedView(UIPinchGestureRecognizer& gesture)
{
    ZoomCollectionView->setScale(ZoomCollectionView->scale() * gesture.scale());
    gesture.setScale(1);
}

void ZoomViewController::draggedView(UIPanGestureRecognizer& gesture)
{
    ZoomCollectionView->setCenter(ZoomCollectionView->center() + gesture.translation());
    gesture.setTranslation({});
}

void ZoomViewController::shareButtonClicked()
{
    shareWhereTextsCanBeSent(*this, [] {
        std::vector<ActivityItem> items;
        if (QImage cover = selectedCover(); !cover.isNull())
            items.emplace_back(std::move(cover));
        return items;
    });
}
