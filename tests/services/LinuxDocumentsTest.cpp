#include "platform/services/LinuxDocuments.h"

#include "platform/services/FileBytes.h"
#include "tests/support/ManualQueue.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWindow>
#include <gtest/gtest.h>

namespace {

class LinuxDocumentsTest : public testing::Test
{
protected:
    // The dialog on the screen; more than one is a fault.
    static QFileDialog* shownDialog()
    {
        QFileDialog* found = nullptr;
        const auto widgets = QApplication::topLevelWidgets();
        for (QWidget* widget : widgets) {
            auto* dialog = qobject_cast<QFileDialog*>(widget);
            if (dialog == nullptr || !dialog->isVisible())
                continue;
            EXPECT_EQ(found, nullptr);
            found = dialog;
        }
        return found;
    }

    static void press(QWidget* widget, Qt::Key key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &event);
    }

    // As someone without a mouse does: types the path and presses Enter.
    static void enter(const QString& path)
    {
        auto* field = shownDialog()->findChild<QLineEdit*>();
        field->setText(path);
        press(field, Qt::Key_Return);
    }

    static QString writtenFile(const QString& name, const QByteArray& content)
    {
        QFile file(QDir::home().filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    void pick()
    {
        documents->pickDocument({"Choose a File", {}}, [this](const std::optional<QUrl>& url) {
            told.append(url ? url->toLocalFile() : "cancelled");
        });
    }

    void save(const QByteArray& content)
    {
        documents->saveDocument("Shared.txt", openBytes(content), [this](const QString& problem) {
            told.append(problem.isEmpty() ? "saved" : "problem");
        });
    }

    ManualQueue queue;
    std::unique_ptr<LinuxDocuments> documents = std::make_unique<LinuxDocuments>();
    QStringList told;
};

TEST_F(LinuxDocumentsTest, SavesEveryByteWhereTheUserSays)
{
    const QByteArray content("a\0\xE9\n", 4);
    save(content);
    EXPECT_EQ(QFileInfo(shownDialog()->selectedFiles().value(0)).fileName(), QString("Shared.txt"));
    enter(QDir::home().filePath("here.txt"));
    EXPECT_TRUE(told.isEmpty()) << "the file is written on another thread";
    queue.advance({});
    EXPECT_EQ(told, QStringList("saved"));
    QFile file(QDir::home().filePath("here.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), content);
}

TEST_F(LinuxDocumentsTest, AnAnswerMayOpenTheNextDialog)
{
    const QString path = writtenFile("first.csv", "a");
    documents->pickDocument({"Choose a File", {}}, [this](const std::optional<QUrl>&) { pick(); });
    enter(path);
    ASSERT_NE(shownDialog(), nullptr);
    enter(path);
    EXPECT_EQ(told, QStringList(path));
}

TEST_F(LinuxDocumentsTest, ADialogTakenAwayTellsNothing)
{
    pick();
    documents->cancelPicking();
    EXPECT_EQ(shownDialog(), nullptr);
    pick();
    documents.reset();
    EXPECT_EQ(shownDialog(), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(LinuxDocumentsTest, StacksAboveTheProgramsWindow)
{
    QWindow window;
    window.show();
    window.requestActivate();
    while (QGuiApplication::focusWindow() != &window)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    pick();
    EXPECT_EQ(shownDialog()->windowHandle()->transientParent(), &window);
    documents.reset();
}

TEST_F(LinuxDocumentsTest, EscapeCancels)
{
    pick();
    press(shownDialog(), Qt::Key_Escape);
    EXPECT_EQ(told, QStringList("cancelled"));
    save("x");
    press(shownDialog(), Qt::Key_Escape);
    EXPECT_EQ(told, QStringList("cancelled"));
    EXPECT_EQ(shownDialog(), nullptr);
}

TEST_F(LinuxDocumentsTest, APlaceThatTakesNoFileIsAProblem)
{
    save("x");
    enter("/proc/Shared.txt");
    queue.advance({});
    EXPECT_EQ(told, QStringList("problem"));
}

TEST_F(LinuxDocumentsTest, ANewDialogCancelsTheOpenOne)
{
    pick();
    save("x");
    EXPECT_EQ(told, QStringList("cancelled"));
    EXPECT_EQ(shownDialog()->acceptMode(), QFileDialog::AcceptSave);
}

} // namespace
