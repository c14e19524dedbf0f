#include "summaries/GroupScreens.h"

GenreGroupTableViewController::GenreGroupTableViewController()
    : TextGroupTableViewController(genreGroups(), Movies::Genre, &MovieFields::genre)
{
}

void GenreGroupTableViewController::viewDidLoad()
{
    for (const GroupKind* tabKind :
         {&genreGroups(), &dateReleasedGroups(), &dateWatchedGroups(), &ratingGroups(), &providerGroups()})
        setTabImage(*tabKind);
    TextGroupTableViewController::viewDidLoad();
}

RatingGroupTableViewController::RatingGroupTableViewController()
    : TextGroupTableViewController(ratingGroups(), Movies::Rating, &MovieFields::rating)
{
}

ProviderGroupTableViewController::ProviderGroupTableViewController()
    : TextGroupTableViewController(providerGroups(), Movies::Provider, &MovieFields::provider)
{
}
