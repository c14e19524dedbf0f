#include "summaries/GroupTabBarController.h"

#include "summaries/GroupScreens.h"

namespace {

template <typename Screen>
UITabBarController::Tab tabOf(const GroupKind& kind)
{
    return {kind.tabTitle, [] { return std::make_unique<Screen>(); }};
}

} // namespace

GroupTabBarController::GroupTabBarController()
    : UITabBarController({tabOf<GenreGroupTableViewController>(genreGroups()),
                          tabOf<DateReleasedGroupTableViewController>(dateReleasedGroups()),
                          tabOf<DateWatchedGroupTableViewController>(dateWatchedGroups()),
                          tabOf<RatingGroupTableViewController>(ratingGroups()),
                          tabOf<ProviderGroupTableViewController>(providerGroups())})
{
}
