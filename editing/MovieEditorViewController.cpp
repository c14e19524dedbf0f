#include "editing/MovieEditorViewController.h"

#include "editing/CharacterFilters.h"
#include "editing/ReferenceTexts.h"
#include "model/ReferenceRecords.h"
#include "platform/services/Device.h"
#include "platform/services/SystemVersions.h"
#include "platform/toolkit/UIAlertController.h"

namespace {

constexpr int digitsOnlyTag = 1;
constexpr double pickerFontSize = 16;

} // namespace

MovieEditorViewController::MovieEditorViewController()
    : referenceFields{
          {1, RatingPickerView, RatingTextField, &ListOfRating, Ratings::entityName(),
           QStringLiteral("rating")},
          {2, GenrePickerView, GenreTextField, &ListOfGenre, Genres::entityName(), QStringLiteral("genre")},
          {4, ProviderPickerView, providerField, &ListOfProviders, Providers::entityName(),
           QStringLiteral("name")}}
{
    YearReleasedTextField->setTag(digitsOnlyTag);
}

void MovieEditorViewController::viewDidLoad()
{
    fillPickerLists();
    connectInputs();
    styleViews();
    labelImageButtons();
}

void MovieEditorViewController::fillPickerLists()
{
    for (const ReferenceField& reference : referenceFields)
        *reference.rows = referenceTexts(context, reference.entityName, reference.attribute);
}

void MovieEditorViewController::connectInputs()
{
    YearReleasedTextField->setDelegate(this);
    RunTimeTextField->setDelegate(this);
    NotesTextView->setDelegate(this);
    DateWatchedTextField->setInputView(DateWatchedDatePicker);
    for (const ReferenceField& reference : referenceFields) {
        reference.picker->setTag(reference.tag);
        reference.picker->setDelegate(this);
        reference.field->setInputView(reference.picker);
        connect(reference.field, &UITextInput::editingDidBegin, reference.picker, [&reference] {
            reference.picker->selectRow(static_cast<int>(reference.rows->indexOf(reference.field->text())));
        });
    }
}

void MovieEditorViewController::styleViews()
{
    ContentView->setBackgroundColor(colorWithHue(0.6, 0.07, 0.96, 1.0));
    const std::initializer_list<UIView*> inputs{
        MovieNameTextField,   YearReleasedTextField, RunTimeTextField, RatingTextField,
        GenreTextField,       providerField,         ActorsTextView,   DirectorsTextView,
        DateWatchedTextField, ProducersTextView,     NotesTextView,    coverView};
    for (UIView* input : inputs)
        input->setLayer({.cornerRadius = 5, .borderWidth = 1, .borderColor = {}});
    for (UIView* button : {PasteButton, CameraButton, FolderButton, RemoveButton})
        button->setLayer({.cornerRadius = 10, .borderWidth = 1, .borderColor = Qt::black});
}

void MovieEditorViewController::labelImageButtons()
{
    struct Face
    {
        UIButton* button;
        QString title;
        QString symbol;
    };
    const bool hasSymbols = Device::current().systemVersion >= SystemVersions::symbolImages;
    for (const Face& face :
         {Face{PasteButton, QStringLiteral("Paste"), QStringLiteral("doc.on.clipboard.fill")},
          Face{CameraButton, QStringLiteral("Camera"), QStringLiteral("camera")},
          Face{FolderButton, QStringLiteral("Folder"), QStringLiteral("folder")},
          Face{RemoveButton, QStringLiteral("Remove"), QStringLiteral("delete.left")}}) {
        face.button->setTitle(face.title);
        if (hasSymbols)
            face.button->setImage(face.symbol);
    }
}

void MovieEditorViewController::dismissKeyboard()
{
    endEditing();
}

void MovieEditorViewController::showAlert(const QString& title, const QString& message)
{
    present(UIAlertController::withOk(title, message));
}

bool MovieEditorViewController::shouldChangeCharactersInRange(UITextField& field, const NSRange& /*range*/,
                                                              const QString& string)
{
    return field.tag() == digitsOnlyTag ? hasDigitsOnly(string) : hasNumberCharactersOnly(string);
}

bool MovieEditorViewController::shouldChangeTextInRange(UITextView& /*view*/, const NSRange& /*range*/,
                                                        const QString& text)
{
    return hasNotesCharactersOnly(text);
}

const MovieEditorViewController::ReferenceField*
MovieEditorViewController::referenceField(const UIPickerView& picker) const
{
    const auto found = std::find_if(referenceFields.begin(), referenceFields.end(),
                                    [&](const ReferenceField& field) { return field.tag == picker.tag(); });
    return found == referenceFields.end() ? nullptr : &*found;
}

int MovieEditorViewController::numberOfComponentsInPickerView(const UIPickerView& /*picker*/)
{
    return 1;
}

int MovieEditorViewController::numberOfRowsInComponent(const UIPickerView& picker, int /*component*/)
{
    const ReferenceField* reference = referenceField(picker);
    return reference == nullptr ? 0 : static_cast<int>(reference->rows->size());
}

QString MovieEditorViewController::titleForRow(const UIPickerView& picker, int row, int /*component*/)
{
    const ReferenceField* reference = referenceField(picker);
    return reference == nullptr ? QString() : reference->rows->value(row);
}

LabelContent MovieEditorViewController::viewForRow(const UIPickerView& picker, int row, int component)
{
    LabelContent label;
    label.text = titleForRow(picker, row, component);
    label.fontSize = pickerFontSize;
    label.bold = true;
    label.centred = true;
    return label;
}

void MovieEditorViewController::didSelectRow(UIPickerView& picker, int row, int component)
{
    if (const ReferenceField* reference = referenceField(picker))
        reference->field->setText(titleForRow(picker, row, component));
}
