#pragma once

#include "editing/ZoomCollectionViewCell.h"
#include "platform/toolkit/UIBarButtonItem.h"
#include "platform/toolkit/UICollectionView.h"
#include "platform/toolkit/UIGestureRecognizer.h"
#include "platform/toolkit/UIViewController.h"

// The stored cover of CurrentMovie, large, to be pinched and dragged without bounds, and shared.
class ZoomViewController : public UIViewController, public UICollectionViewDataSource
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UICollectionView* ZoomCollectionView MEMBER ZoomCollectionView CONSTANT FINAL)
    Q_PROPERTY(UIPinchGestureRecognizer* pinchRec MEMBER pinchRec CONSTANT FINAL)
    Q_PROPERTY(UIPanGestureRecognizer* panRec MEMBER panRec CONSTANT FINAL)
    Q_PROPERTY(UIBarButtonItem* ShareButton MEMBER ShareButton CONSTANT FINAL)

public:
    using UIViewController::UIViewController;

    void viewDidLoad() override;
    // The layout's room is `viewWidth` points wide now.
    Q_INVOKABLE void viewDidLayoutSubviews(double viewWidth);
    Q_INVOKABLE void shareButtonClicked();

    [[nodiscard]] int numberOfItemsInSection(int section) override;
    [[nodiscard]] QVariant cellForItemAt(const NSIndexPath& indexPath) override;

    void pinchedView(UIPinchGestureRecognizer& gesture);
    void draggedView(UIPanGestureRecognizer& gesture);

    UICollectionView* const ZoomCollectionView = new UICollectionView(this);
    UIPinchGestureRecognizer* const pinchRec = new UIPinchGestureRecognizer(this);
    UIPanGestureRecognizer* const panRec = new UIPanGestureRecognizer(this);
    UIBarButtonItem* const ShareButton = new UIBarButtonItem(this);
};
