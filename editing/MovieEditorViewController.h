#pragma once

#include "editing/MovieField.h"
#include "model/AppDelegate.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/services/UIDocumentPickerViewController.h"
#include "platform/services/UIImagePickerController.h"
#include "platform/toolkit/UIButton.h"
#include "platform/toolkit/UIDatePicker.h"
#include "platform/toolkit/UIImageView.h"
#include "platform/toolkit/UIPickerView.h"
#include "platform/toolkit/UITextField.h"
#include "platform/toolkit/UITextView.h"

#include <QStringList>
#include <QUrl>

// What the entry and the update of a movie share: fields, pickers fed by the reference lists, typing filters,
// the date picker, the cover, and the order in which a save writes the fields. A subclass says what differs.
class MovieEditorViewController : public UIViewController,
                                  public UITextFieldDelegate,
                                  public UITextViewDelegate,
                                  public UIPickerViewDelegate,
                                  public UIDocumentPickerDelegate,
                                  public UIImagePickerControllerDelegate
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UITextField* MovieNameTextField MEMBER MovieNameTextField CONSTANT FINAL)
    Q_PROPERTY(UITextField* YearReleasedTextField MEMBER YearReleasedTextField CONSTANT FINAL)
    Q_PROPERTY(UITextField* RunTimeTextField MEMBER RunTimeTextField CONSTANT FINAL)
    Q_PROPERTY(UITextField* RatingTextField MEMBER RatingTextField CONSTANT FINAL)
    Q_PROPERTY(UITextField* GenreTextField MEMBER GenreTextField CONSTANT FINAL)
    Q_PROPERTY(UITextField* DateWatchedTextField MEMBER DateWatchedTextField CONSTANT FINAL)
    Q_PROPERTY(UITextView* ActorsTextView MEMBER ActorsTextView CONSTANT FINAL)
    Q_PROPERTY(UITextView* DirectorsTextView MEMBER DirectorsTextView CONSTANT FINAL)
    Q_PROPERTY(UITextView* ProducersTextView MEMBER ProducersTextView CONSTANT FINAL)
    Q_PROPERTY(UITextView* NotesTextView MEMBER NotesTextView CONSTANT FINAL)
    Q_PROPERTY(UITextField* providerField MEMBER providerField CONSTANT FINAL)
    Q_PROPERTY(UIImageView* coverView MEMBER coverView CONSTANT FINAL)
    Q_PROPERTY(UIView* ContentView MEMBER ContentView CONSTANT FINAL)
    Q_PROPERTY(UIButton* PasteButton MEMBER PasteButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* CameraButton MEMBER CameraButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* FolderButton MEMBER FolderButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* RemoveButton MEMBER RemoveButton CONSTANT FINAL)

public:
    MovieEditorViewController();

    void viewDidLoad() override;

    // Actions. The layout calls DateWatchedEntered when editing of the date begins, dismissKeyboard at a tap
    // on the view.
    Q_INVOKABLE void DateWatchedEntered();
    Q_INVOKABLE void DateWatchedDateChanged();
    Q_INVOKABLE void DateWatchedDoneClick();
    // Shows today but keeps the picker's day as the one to store.
    Q_INVOKABLE void DateWatchedTodayClick();
    Q_INVOKABLE void dismissKeyboard();
    Q_INVOKABLE void AttachFrontImage();
    Q_INVOKABLE void OpenFrontCamera();
    Q_INVOKABLE void PasteImage();
    Q_INVOKABLE virtual void RemoveFrontImage() = 0;
    // Stores the movie and leaves; while a required field is empty it says so instead. A year or run time
    // that is no signed 16-bit number ends the program.
    Q_INVOKABLE void SaveButtonClicked();

    [[nodiscard]] bool shouldChangeCharactersInRange(UITextField& field, const NSRange& range,
                                                     const QString& string) override;
    [[nodiscard]] bool shouldChangeTextInRange(UITextView& view, const NSRange& range,
                                               const QString& text) override;
    [[nodiscard]] int numberOfComponentsInPickerView(const UIPickerView& picker) override;
    [[nodiscard]] int numberOfRowsInComponent(const UIPickerView& picker, int component) override;
    [[nodiscard]] QString titleForRow(const UIPickerView& picker, int row, int component) override;
    [[nodiscard]] LabelContent viewForRow(const UIPickerView& picker, int row, int component) override;
    void didSelectRow(UIPickerView& picker, int row, int component) override;
    void didPickDocumentsAtURLs(UIDocumentPickerViewController& picker, const QList<QUrl>& urls) override;
    void didFinishPickingMediaWithInfo(UIImagePickerController& picker, const QVariantMap& info) override;
    void imagePickerControllerDidCancel(UIImagePickerController& picker) override;

    // Outlets.
    UITextField* const MovieNameTextField = new UITextField(this);
    UITextField* const YearReleasedTextField = new UITextField(this);
    UITextField* const RunTimeTextField = new UITextField(this);
    UITextField* const RatingTextField = new UITextField(this);
    UITextField* const GenreTextField = new UITextField(this);
    UITextField* const DateWatchedTextField = new UITextField(this);
    UITextView* const ActorsTextView = new UITextView(this);
    UITextView* const DirectorsTextView = new UITextView(this);
    UITextView* const ProducersTextView = new UITextView(this);
    UITextView* const NotesTextView = new UITextView(this);
    UIView* const ContentView = new UIView(this);
    UIButton* const PasteButton = new UIButton(this);
    UIButton* const CameraButton = new UIButton(this);
    UIButton* const FolderButton = new UIButton(this);
    UIButton* const RemoveButton = new UIButton(this);
    // Each subclass shows these two under a name of its own.
    UITextField* const providerField = new UITextField(this);
    UIImageView* const coverView = new UIImageView(this);

    // The day to store, whatever the date field shows.
    QDateTime DateWatched = QDateTime::currentDateTimeUtc();
    // A new one each time the user enters the date field.
    UIDatePicker* DateWatchedDatePicker = new UIDatePicker(this);
    UIPickerView* const GenrePickerView = new UIPickerView(this);
    UIPickerView* const RatingPickerView = new UIPickerView(this);
    UIPickerView* const ProviderPickerView = new UIPickerView(this);
    // The rows of the pickers, read once as the screen loads.
    QStringList ListOfGenre;
    QStringList ListOfRating;
    QStringList ListOfProviders;

    // The file last picked as cover; empty until then.
    QUrl document;
    // An image is being chosen, and it is to come from the camera; a cancelled choice leaves both as they
    // are.
    bool isFrontImage = false;
    bool isFromCamera = false;
    // The last image taken by the camera.
    QImage chosenFrontImage;

protected:
    // Told in the alert when a required field is empty.
    [[nodiscard]] virtual QString missingFieldsMessage() const = 0;
    // The record that a save writes; null: nothing is saved and the screen stays.
    [[nodiscard]] virtual std::shared_ptr<Movies> recordToSave() = 0;
    // Writes `dateWatched`, `wDay`, `wMonth` and `wYear`; called when the date field isn't empty.
    virtual void writeDateWatched(Movies& movie) = 0;
    // Returns to the screen that opened this one.
    virtual void leave() = 0;

    void showAlert(const QString& title, const QString& message);

    NSManagedObjectContext& context = AppDelegate::shared().persistentContainer().viewContext();
    UserDefaults userDefaults = UserDefaults::standard();

private:
    // A reference list in the making of a movie: its picker and where the chosen row goes.
    struct ReferenceField
    {
        int tag;
        UIPickerView* picker;
        UITextField* field;
        QStringList* rows;
        QString entityName;
        QString attribute;
    };

    void fillPickerLists();
    void connectInputs();
    void styleViews();
    void labelImageButtons();
    [[nodiscard]] const ReferenceField* referenceField(const UIPickerView& picker) const;
    [[nodiscard]] std::vector<MovieField> movieFields();
    [[nodiscard]] bool lacksRequiredField() const;
    void writeCover(Movies& movie);
    void takePickersDate();

    const std::vector<ReferenceField> referenceFields;
};
