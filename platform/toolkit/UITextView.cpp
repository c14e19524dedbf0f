#include "platform/toolkit/UITextView.h"

bool UITextView::allowsChange(const NSRange& range, const QString& replacement)
{
    if (!editable)
        return false;
    return viewDelegate == nullptr || viewDelegate->shouldChangeTextInRange(*this, range, replacement);
}
