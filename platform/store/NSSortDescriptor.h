#pragma once

#include <QString>

// Sorts by the attribute called `key`: texts by code point, records without a value first when ascending.
struct NSSortDescriptor
{
    QString key;
    bool ascending = true;
};
