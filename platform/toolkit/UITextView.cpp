#include "platform/toolkit/UITextView.h"

// An editor of several lines knows one kind of line break and one kind of blank.
QChar UITextView::shownFor(QChar character) const
{
    constexpr QStringView lineBreaks = u"\r\u2028\u2029\ufdd0\ufdd1";
    if (lineBreaks.contains(character))
        return u'\n';
    return character == QChar::Nbsp ? QChar(u' ') : character;
}

bool UITextView::allowsChange(const NSRange& range, const QString& replacement)
{
    if (!editable)
        return false;
    return viewDelegate == nullptr || viewDelegate->shouldChangeTextInRange(*this, range, replacement);
}

void UITextView::setAttributedText(const NSAttributedString& value)
{
    attributed = value;
    setText(value.string());
    if (cutText != nullptr)
        cutText->cut(attributed);
}

NSAttributedString UITextView::attributedText() const
{
    return attributed.string() == text() ? attributed : NSAttributedString(text());
}

TextPieces* UITextView::pieces()
{
    if (cutText == nullptr) {
        cutText = new TextPieces(this);
        followText();
        connect(this, &UIView::changed, this, &UITextView::followText);
    }
    return cutText;
}

void UITextView::followText()
{
    if (cutText->text() != text())
        cutText->cut(text());
}

void UITextView::editPiece(int row, const QString& newText)
{
    if (!edit(cutText->replace(row, edited(cutText->piece(row), newText))))
        cutText->cut(text());
}
