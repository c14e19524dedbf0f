#include "summaries/PeopleText.h"

QString peopleOnOneLine(QString people)
{
    people.replace(QLatin1Char('\n'), QLatin1Char(','));
    if (people.endsWith(QLatin1Char(',')))
        people.chop(1);
    return people;
}
