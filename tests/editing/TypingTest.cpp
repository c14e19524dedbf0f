#include "editing/CharacterFilters.h"
#include "model/ReferenceRecords.h"
#include "tests/editing/AddMovieTest.h"

namespace {

class TypingTest : public AddMovieTest
{
protected:
    template <typename Entity>
    static void givenReferences(const std::vector<std::optional<QString>>& values)
    {
        for (const auto& value : values)
            context().insert<Entity>()->setValue(value);
        EXPECT_TRUE(context().save().ok());
    }
};

TEST_F(TypingTest, NumbersTakeDigitsAndTheRunTimeAPointToo)
{
    const AddMovieViewController& screen = opened();
    struct Case
    {
        QString typed;
        bool inYear, inRunTime;
    };
    const std::vector<Case> cases{
        {"1979", true, true},
        {"19.5", false, true},
        {"-7", false, false},
        {"1 9", false, false},
        {"12a", false, false},
        {QString::fromUtf8("١٩٧٩"), true, false},
        {QString::fromUtf8("𝟏"), true, false},
        {QString::fromUtf8("²"), false, false},
        {QString::fromUtf8("½"), false, false},
    };
    for (const Case& example : cases) {
        for (UITextField* field : {screen.YearReleasedTextField, screen.RunTimeTextField}) {
            field->setText({});
            const bool accepted = field == screen.YearReleasedTextField ? example.inYear : example.inRunTime;
            EXPECT_EQ(field->edit(example.typed), accepted) << qPrintable(example.typed);
            EXPECT_EQ(field->text(), accepted ? example.typed : QString());
        }
    }
}

TEST_F(TypingTest, NotesTakeTheirCharactersAloneAndTheOtherTextsAll)
{
    int accepted = 0;
    for (char16_t unit = 1; unit < 0xFFFF; ++unit)
        accepted += hasNotesCharactersOnly(QString(QChar(unit))) ? 1 : 0;
    EXPECT_EQ(accepted, 91);

    const AddMovieViewController& screen = opened();
    type(*screen.NotesTextView, "It's (50%) [ok] {a}/<b> ~`_+: ;-=?!@#$&*");
    const QString before = screen.NotesTextView->text();
    for (const char* refused : {"\n", "\"", "\\", "|", "^", "\t", "\xc3\xa9", "fine but for \n this"})
        EXPECT_FALSE(screen.NotesTextView->edit(before + refused)) << refused;
    EXPECT_EQ(screen.NotesTextView->text(), before);
    for (UITextInput* input : std::initializer_list<UITextInput*>{
             screen.ActorsTextView, screen.DirectorsTextView, screen.ProducersTextView,
             screen.MovieNameTextField, screen.WatchedOnTextField})
        type(*input, QString::fromUtf8("\"é\"|\\^"));
}

TEST_F(TypingTest, PickersOfferEachReferenceOnceInOrderAndFillTheirField)
{
    givenReferences<Genres>({"War", "epic", std::nullopt, "Epic", "War"});
    givenReferences<Ratings>({"R", "G"});
    givenReferences<Providers>({"Hulu"});
    AddMovieViewController& screen = opened();
    givenReferences<Ratings>({"A"});

    EXPECT_EQ(screen.GenrePickerView->titles(), QStringList({"Epic", "War", "epic"}));
    EXPECT_EQ(screen.RatingPickerView->titles(), QStringList({"G", "R"})) << "read once, as the screen loads";
    EXPECT_EQ(screen.ProviderPickerView->titles(), QStringList("Hulu"));
    const std::vector<std::pair<UIPickerView*, UITextField*>> links{
        {screen.RatingPickerView, screen.RatingTextField},
        {screen.GenrePickerView, screen.GenreTextField},
        {screen.ProviderPickerView, screen.WatchedOnTextField}};
    for (const auto& [picker, field] : links) {
        EXPECT_EQ(field->inputView(), picker);
        EXPECT_EQ(field->text(), "");
        picker->choose(0);
        EXPECT_EQ(field->text(), picker->titles().front());
    }
    screen.GenreTextField->setText("War");
    screen.GenreTextField->becomeFirstResponder();
    EXPECT_EQ(screen.GenrePickerView->selectedRow(), 1) << "the wheel starts at what the field holds";
    EXPECT_EQ(screen.GenreTextField->text(), "War");
}

TEST_F(TypingTest, TheScreenHasItsLooks)
{
    for (const double version : {12.9, 13.0}) {
        device.systemVersion = version;
        const AddMovieViewController& screen = opened();
        EXPECT_EQ(screen.title(), "Add Movie");
        EXPECT_EQ(screen.ContentView->backgroundColor(), colorWithHue(0.6, 0.07, 0.96, 1.0));
        EXPECT_EQ(screen.FrontImageView->layer(), (Layer{.cornerRadius = 5, .borderWidth = 1}));
        const std::vector<std::tuple<UIButton*, QString, QString>> faces{
            {screen.PasteButton, "Paste", "doc.on.clipboard.fill"},
            {screen.CameraButton, "Camera", "camera"},
            {screen.FolderButton, "Folder", "folder"},
            {screen.RemoveButton, "Remove", "delete.left"}};
        for (const auto& [button, title, symbol] : faces) {
            EXPECT_EQ(button->title(), title);
            EXPECT_EQ(button->image(), version >= 13 ? symbol : QString());
            EXPECT_EQ(button->layer(),
                      (Layer{.cornerRadius = 10, .borderWidth = 1, .borderColor = Qt::black}));
        }
    }
}

} // namespace
