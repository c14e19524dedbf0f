#include "tour/Chapters.h"
#include "tour/Tour.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>

void shareMovies(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("Without text messages nothing is shared");
    tour.choose("Movie List");
    visitor.tap(button("Share"));
    visitor.expect(text("Can't Send Text Message"));
    visitor.expect(text("Your device is not able to send text messages."));
    visitor.tap(button("OK"));

    tour.step("With them the list is shared as text");
    tour.device.setCanSendText(true);
    visitor.type(field("Search by Movie Name"), "lighthouse");
    visitor.expect(row("Movie Name: The Lighthouse of Marrowvale"));
    visitor.tap(button("Share"));
    visitor.expect(choice("Copy"));
    tour.picture("share");
    visitor.tap(choice("Copy"));
    visitor.expectThat("The clipboard lacks the movie", [] {
        return QGuiApplication::clipboard()->text().startsWith("Movie Name: The Lighthouse of Marrowvale\n");
    });
    visitor.expectNo(choice("Copy"));

    tour.step("Or saved to a file");
    visitor.tap(button("Share"));
    visitor.tap(choice("Save to Files"));
    visitor.expectThat("There is no file of the movies",
                       [&] { return QFile(tour.home.path("Shared.txt")).size() > 0; });
    visitor.expectNo(choice("Copy"));

    tour.step("A closed sheet shares nothing");
    QGuiApplication::clipboard()->clear();
    visitor.tap(button("Share"));
    visitor.tap(button("Cancel"));
    visitor.expectNo(choice("Copy"));
    visitor.expectThat("The clipboard has the movie",
                       [] { return QGuiApplication::clipboard()->text().isEmpty(); });
    visitor.tap(button("Back"));
    visitor.expect(button("Menu"));
}
