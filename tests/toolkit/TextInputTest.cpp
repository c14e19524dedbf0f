#include "platform/toolkit/UITextField.h"
#include "platform/toolkit/UITextView.h"

#include <QTextDocument>
#include <gtest/gtest.h>

namespace {

class NotingDelegate : public UITextViewDelegate
{
public:
    bool shouldChangeTextInRange(UITextView& /*view*/, const NSRange& range, const QString& text) override
    {
        asked << QStringLiteral("%1+%2:%3").arg(range.location).arg(range.length).arg(text);
        return true;
    }

    QStringList asked;
};

// The text as the editor of several lines has it.
QString shown(const QString& text)
{
    QTextDocument document;
    document.setPlainText(text);
    return document.toPlainText();
}

struct Edit
{
    const char16_t* stored;
    // In the editor's text.
    int at, removed;
    const char16_t* typed;
    const char16_t* expected;
    const char* asked;
};

const Edit edits[] = {
    {u"caf\u00e9\u00a0bar", 8, 0, u"x", u"caf\u00e9\u00a0barx", "8+0:x"},
    {u"caf\u00e9\u00a0bar", 0, 0, u"x", u"xcaf\u00e9\u00a0bar", "0+0:x"},
    {u"one\r\ntwo\r\nthree", 7, 0, u"x", u"one\r\ntwox\r\nthree", "8+0:x"},
    {u"one\r\ntwo\r\nthree", 13, 0, u"x", u"one\r\ntwo\r\nthreex", "15+0:x"},
    {u"one\r\ntwo\r\nthree", 3, 1, u"", u"onetwo\r\nthree", "3+2:"},
    {u"\r\n\r\n", 0, 1, u"", u"\r\n", "2+2:"},
    {u"one\rtwo", 4, 0, u"x", u"one\rxtwo", "4+0:x"},
    {u"a\u2028b\u2029c", 3, 1, u"x", u"a\u2028bxc", "3+1:x"},
    {u"a\u00a0b", 1, 1, u"x", u"axb", "1+1:x"},
    {u"a\u00a0b", 0, 3, u"", u"", "0+3:"},
    {u"\ufdd0a\ufdd1b", 2, 0, u"x", u"\ufdd0ax\ufdd1b", "2+0:x"},
    {u"\r\na", 2, 0, u"\n", u"\r\na\n", "3+0:\n"},
};

TEST(TextInput, LeavesWhatTheUserDidNotTouchAsItWas)
{
    for (const auto& [stored, at, removed, typed, expected, asked] : edits) {
        NotingDelegate delegate;
        UITextView view;
        view.setDelegate(&delegate);
        view.setText(QString::fromUtf16(stored));
        EXPECT_TRUE(view.edit(shown(view.text())));
        EXPECT_EQ(delegate.asked, QStringList()) << "showing a text is no change";
        const QString after = shown(view.text()).replace(at, removed, QString::fromUtf16(typed));
        EXPECT_TRUE(view.edit(after));
        EXPECT_EQ(view.text(), QString::fromUtf16(expected)) << asked;
        EXPECT_EQ(delegate.asked.value(0), QString::fromUtf8(asked));
    }
}

TEST(TextInput, LeavesThePiecesOfALongTextAsTheyWere)
{
    const QString stored = QStringLiteral("a\u00a0b\n").repeated(2000);
    UITextView view;
    view.setText(stored);
    TextPieces& pieces = *view.pieces();
    int resets = 0;
    QObject::connect(&pieces, &QAbstractItemModel::modelReset, &pieces, [&resets] { ++resets; });
    view.editPiece(1, shown(pieces.piece(1)) + QLatin1Char('x'));
    EXPECT_EQ(view.text().size(), stored.size() + 1);
    EXPECT_EQ(view.text().remove(QLatin1Char('x')), stored);
    EXPECT_EQ(resets, 0) << "the cursor stays where it is";
}

// A field of one line shows every character as it is.
TEST(TextInput, LetsAFieldExchangeCharactersThatLookAlike)
{
    UITextField field;
    field.setText(QStringLiteral("a\u00a0b"));
    EXPECT_TRUE(field.edit(QStringLiteral("a b")));
    EXPECT_EQ(field.text(), QStringLiteral("a b"));
}

} // namespace
