#include "platform/foundation/UserDefaults.h"

#include "platform/foundation/Console.h"
#include "platform/foundation/FileWriting.h"
#include "platform/foundation/IniText.h"

#include <QDateTime>
#include <QDir>
#include <QFileDevice>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace {

// An INI file knows only text. Values stand in it as a person would write them; a text that would be taken
// for another type carries this mark.
constexpr QLatin1String textMark("text:");

QString written(const QDateTime& date)
{
    return date.toUTC().toString(Qt::ISODateWithMs);
}

QVariant read(const QString& text)
{
    if (text.startsWith(textMark))
        return text.mid(textMark.size());
    if (text == QStringLiteral("true") || text == QStringLiteral("false"))
        return text == QStringLiteral("true");
    const auto date = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (date.isValid() && written(date) == text)
        return date;
    return text;
}

QString written(const QString& text)
{
    const bool mistakable = read(text).typeId() != QMetaType::QString || text.startsWith(textMark);
    return mistakable ? textMark + text : text;
}

std::optional<QString> written(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toString();
    case QMetaType::QString:
        return written(value.toString());
    case QMetaType::QDateTime:
        if (value.toDateTime().isValid())
            return written(value.toDateTime());
        break;
    default:
        break;
    }
    return std::nullopt;
}

bool readIni(QIODevice& file, QSettings::SettingsMap& values)
{
    values = valuesOfIniText(file.readAll());
    return true;
}

bool writeIni(QIODevice& device, const QSettings::SettingsMap& values)
{
    auto& file = static_cast<QFileDevice&>(device);
    return writeAll(file, iniText(values)) && syncToDisk(file);
}

// QSettings' own INI format doesn't notice a full disk: it leaves an empty file in the place of the old one.
QSettings::Format checkedIniFormat()
{
    static const auto format = QSettings::registerFormat(QStringLiteral("ini"), readIni, writeIni);
    return format;
}

void makePrivateDirectory(const QString& path)
{
    QDir().mkpath(QFileInfo(path).path());
    QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

UserDefaults UserDefaults::standard()
{
    return UserDefaults(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                        QStringLiteral("/marrowvale/marrowvale.ini"));
}

UserDefaults::UserDefaults(const QString& path)
    : settings(std::make_shared<QSettings>(path, checkedIniFormat()))
{
}

bool UserDefaults::boolForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    return value && value->typeId() == QMetaType::Bool && value->toBool();
}

std::optional<QVariant> UserDefaults::objectForKey(const QString& key) const
{
    if (!settings->contains(key))
        return std::nullopt;
    return read(settings->value(key).toString());
}

void UserDefaults::setBool(bool value, const QString& key)
{
    setObject(value, key);
}

void UserDefaults::setObject(const QVariant& value, const QString& key)
{
    const auto text = written(value);
    if (!text)
        fatalError(QStringLiteral("Settings cannot hold the value of ") + key);
    makePrivateDirectory(QFileInfo(settings->fileName()).path());
    settings->setValue(key, *text);
    synchronize();
}

void UserDefaults::synchronize()
{
    settings->sync();
}
