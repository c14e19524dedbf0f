#pragma once

class Tour;

// A chapter of the tour: it begins at the home menu, in a home and with a catalogue of its own.
struct Chapter
{
    enum class Catalogue { Empty, OneMovie, AllMovies };

    const char* name;
    // What the catalogue holds before: nothing; "The Lighthouse of Marrowvale"; that and the exchange file's.
    Catalogue catalogue;
    void (*play)(Tour& tour);
};

// The menu of a fresh installation, and what the reference lists start with.
void seeFirstLaunch(Tour& tour);
// One movie, entered in every way that the form offers.
void addMovie(Tour& tour);
// A file that is none of ours, then the exchange file.
void importMovies(Tour& tour);
// The four orders both ways, the search, deleting.
void browseMovies(Tour& tour);
// A movie found by the search, its cover, and a change of it.
void editMovie(Tour& tour);
// The share sheet, without and with text messages.
void shareMovies(Tour& tour);
// The default date, picked in each style that the settings offer.
void changeSettings(Tour& tour);
// A genre added, renamed and deleted; the ratings and the providers.
void keepReferenceLists(Tour& tour);
// Every kind of group, the movies of one, their report and their printed list.
void groupMovies(Tour& tour);
// The exchange file, and what stands under "Rate/Share".
void sendOut(Tour& tour);
// The list, by keyboard alone.
void lookAround(Tour& tour);

inline const Chapter chapters[] = {
    {"first-launch", Chapter::Catalogue::Empty, seeFirstLaunch},
    {"add-movie", Chapter::Catalogue::Empty, addMovie},
    {"import", Chapter::Catalogue::OneMovie, importMovies},
    {"browse", Chapter::Catalogue::AllMovies, browseMovies},
    {"share", Chapter::Catalogue::OneMovie, shareMovies},
    {"edit-movie", Chapter::Catalogue::OneMovie, editMovie},
    {"settings", Chapter::Catalogue::Empty, changeSettings},
    {"reference-lists", Chapter::Catalogue::OneMovie, keepReferenceLists},
    {"groups", Chapter::Catalogue::AllMovies, groupMovies},
    {"send-out", Chapter::Catalogue::AllMovies, sendOut},
    {"keyboard", Chapter::Catalogue::OneMovie, lookAround},
};
