#pragma once

#include "editing/AddMovieViewController.h"
#include "tests/editing/MovieEditorTest.h"

class AddMovieTest : public MovieEditorTest
{
protected:
    AddMovieViewController& opened() { return pushed<AddMovieViewController>(); }

    // With what a save asks for.
    AddMovieViewController& openedAndFilled()
    {
        AddMovieViewController& screen = opened();
        type(*screen.MovieNameTextField, "Alien");
        type(*screen.YearReleasedTextField, "1979");
        type(*screen.GenreTextField, "Horror");
        return screen;
    }
};
