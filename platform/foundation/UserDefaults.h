#pragma once

#include <QString>
#include <QVariant>
#include <memory>
#include <optional>

class QSettings;

// The user's preferences: values under a key, kept in $XDG_CONFIG_HOME/marrowvale/marrowvale.ini. Every write
// is on disk when it returns and is seen by all other handles; where the file cannot be written the value
// lasts as long as a handle does. A value keeps its type across restarts: a truth value, a text (empty is not
// absent) or a date, written plainly: true, Mar 5, 2021-03-05T20:15:00.000Z.
class UserDefaults
{
public:
    // A handle on the file that the environment names now.
    [[nodiscard]] static UserDefaults standard();

    // False when the key is absent or holds something else.
    [[nodiscard]] bool boolForKey(const QString& key) const;
    // A bool, QString or QDateTime (UTC, to the millisecond).
    [[nodiscard]] std::optional<QVariant> objectForKey(const QString& key) const;

    void setBool(bool value, const QString& key);
    // `value` must hold a bool, QString or valid QDateTime; anything else is a fatal error that names the
    // key.
    void setObject(const QVariant& value, const QString& key);

    // Takes in what other processes wrote.
    void synchronize();

private:
    explicit UserDefaults(const QString& path);

    std::shared_ptr<QSettings> settings;
};
