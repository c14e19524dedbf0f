#pragma once

#include "model/Movies.h"
#include "platform/toolkit/UIActivityIndicatorView.h"
#include "platform/toolkit/UIButton.h"
#include "platform/toolkit/UITextView.h"
#include "platform/toolkit/UIViewController.h"

// Prints the whole catalogue, or the group of the list that opened it, anew from the store: a search there
// doesn't matter here. Reads SharedValues.
class PrintMoviesViewController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UIButton* PrintButton MEMBER PrintButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* CreateFileButton MEMBER CreateFileButton CONSTANT FINAL)
    Q_PROPERTY(UITextView* FileTextView MEMBER FileTextView CONSTANT FINAL)
    Q_PROPERTY(UIActivityIndicatorView* activityIndicator MEMBER activityIndicator CONSTANT FINAL)

public:
    using UIViewController::UIViewController;

    void viewDidLoad() override;
    // Takes away what it presented, the print dialog too.
    void viewDidDisappear(bool animated) override;

    // Adds the movies to the text, shows it and prints. Pressed again it adds them again, and what stood
    // there keeps only its characters, in the look of a title.
    Q_INVOKABLE void CreateFileClick();
    // Prints the text shown. It sends nothing.
    Q_INVOKABLE void EmailFileClick();

    UIButton* const PrintButton = new UIButton(this);
    UIButton* const CreateFileButton = new UIButton(this);
    UITextView* const FileTextView = new UITextView(this);
    // Turns from asking to print until that is sent or cancelled: thousands of movies take a while.
    UIActivityIndicatorView* const activityIndicator = new UIActivityIndicatorView(this);

    std::vector<std::shared_ptr<Movies>> MovieList;
    NSAttributedString MovieString;
    // The number of movies in the text. Counting past 32,767 ends the program.
    qint16 i = 0;

private:
    [[nodiscard]] bool hasMovies();
    void appendMovies();
    void print();

    // Kept, because a screen of another tab may set the shared one meanwhile.
    QString caller;
};
