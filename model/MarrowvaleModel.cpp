#include "model/MarrowvaleModel.h"

#include "model/Migrations.h"
#include "model/Movies.h"
#include "model/ReferenceRecords.h"

namespace {

// "Marw"
constexpr qint32 marrowvaleApplicationId = 0x4d617277;

NSAttributeDescription attributeNamed(const char* name, AttributeType type, AttributeValue defaultValue = {})
{
    return {QString::fromLatin1(name), type, std::move(defaultValue)};
}

// In the order of Movies::Attribute.
std::vector<NSAttributeDescription> movieAttributes()
{
    return {
        attributeNamed("actors", AttributeType::Text),
        attributeNamed("dateWatched", AttributeType::Date, MarrowvaleModel::defaultWatchDate()),
        attributeNamed("directors", AttributeType::Text),
        attributeNamed("frontCover", AttributeType::Binary),
        attributeNamed("genre", AttributeType::Text),
        attributeNamed("movieName", AttributeType::Text),
        attributeNamed("notes", AttributeType::Text),
        attributeNamed("producers", AttributeType::Text),
        attributeNamed("provider", AttributeType::Text),
        attributeNamed("rating", AttributeType::Text),
        attributeNamed("runTime", AttributeType::Int16),
        attributeNamed("wDay", AttributeType::Int16),
        attributeNamed("wMonth", AttributeType::Int16),
        attributeNamed("wYear", AttributeType::Int16),
        attributeNamed("yearReleased", AttributeType::Int16),
    };
}

// One for each way the screens sort, group or count.
std::vector<QStringList> movieIndexes()
{
    const auto movieName = QStringLiteral("movieName");
    return {
        {movieName},
        {QStringLiteral("genre"), movieName},
        {QStringLiteral("yearReleased"), movieName},
        {QStringLiteral("rating"), movieName},
        {QStringLiteral("provider")},
        {QStringLiteral("dateWatched")},
        {QStringLiteral("wYear"), QStringLiteral("wMonth")},
    };
}

template <typename Entity>
NSEntityDescription referenceList(const char* valueName)
{
    return {Entity::entityName(),
            {attributeNamed(valueName, AttributeType::Text)},
            {},
            makeManagedObject<Entity>};
}

NSManagedObjectModel makeModel()
{
    NSManagedObjectModel model;
    model.applicationId = marrowvaleApplicationId;
    model.entities = {
        {Movies::entityName(), movieAttributes(), movieIndexes(), makeManagedObject<Movies>},
        referenceList<Genres>("genre"),
        referenceList<Providers>("name"),
        referenceList<Ratings>("rating"),
        referenceList<Actors>("name"),
    };
    model.migrations = MarrowvaleModel::migrations();
    return model;
}

} // namespace

const NSManagedObjectModel& MarrowvaleModel::description()
{
    static const NSManagedObjectModel model = makeModel();
    return model;
}

QDateTime MarrowvaleModel::defaultWatchDate()
{
    return QDateTime(QDate(2001, 1, 1), QTime(12, 0), Qt::UTC);
}
