#pragma once

#include <QString>

class Tour;

// The tour's story, in this order: each chapter begins and ends at the home menu and builds on what the ones
// before left in the catalogue.

// The menu of a fresh installation, and what the reference lists start with.
void seeFirstLaunch(Tour& tour);
// One movie, entered in every way that the form offers.
void addMovie(Tour& tour);
// A file that is none of ours, then `exchangeFile`.
void importMovies(Tour& tour, const QString& exchangeFile);
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
