#include "platform/store/Migrations.h"
#include "model/MarrowvaleModel.h"
#include "platform/store/Database.h"
#include "platform/store/StoreSchema.h"

#include <QRegularExpression>

namespace {

// What a database holds, whatever the white space of the statements that made it.
QStringList schemaOf(Database& database)
{
    QStringList parts;
    auto select = database.query("SELECT sql FROM sqlite_schema WHERE sql IS NOT NULL ORDER BY name");
    EXPECT_TRUE(select.forEachRow([&] {
        parts << QString::fromUtf8(select.text(0)).remove(QRegularExpression(QStringLiteral("\\s")));
    }));
    return parts;
}

} // namespace

TEST(MigrationsTest, LeadToTheFormThatTheEntitiesDescribe)
{
    const auto& model = MarrowvaleModel::description();
    const auto migrated = Database::open(QStringLiteral(":memory:"), Database::Access::ReadWrite);
    ASSERT_TRUE(migrate(*migrated.value(), model));
    const auto described = Database::open(QStringLiteral(":memory:"), Database::Access::ReadWrite);
    for (const auto& statement : createStatements(model.entities))
        ASSERT_TRUE(described.value()->run(statement)) << statement.constData();
    EXPECT_EQ(schemaOf(*migrated.value()), schemaOf(*described.value()));
}
