#include "platform/foundation/IniText.h"

namespace {

struct Escape
{
    char16_t character;
    char16_t letter;
};

constexpr Escape escapes[] = {{u'\\', u'\\'}, {u'"', u'"'},  {u'\n', u'n'}, {u'\r', u'r'}, {u'\t', u't'},
                              {u'\0', u'0'},  {u'\a', u'a'}, {u'\b', u'b'}, {u'\f', u'f'}, {u'\v', u'v'}};
constexpr int hexadecimal = 16;
constexpr QLatin1String generalSection("General");

bool isHexadecimal(QChar character)
{
    return QStringView(u"0123456789abcdefABCDEF").contains(character);
}

const Escape* escapeOf(QChar character)
{
    const auto* found = std::find_if(std::begin(escapes), std::end(escapes),
                                     [&](const Escape& escape) { return character == escape.character; });
    return found == std::end(escapes) ? nullptr : found;
}

// A number ends at the first character that is no digit of it, so a digit after a number becomes a number
// too.
QString escaped(const QString& value)
{
    QString text;
    bool afterNumber = false;
    for (const auto character : value) {
        const auto* escape = escapeOf(character);
        const bool isNumber =
            escape == nullptr && (character < QLatin1Char(' ') || (afterNumber && isHexadecimal(character)));
        if (escape != nullptr)
            text += QLatin1Char('\\') + QChar(escape->letter);
        else if (isNumber)
            text += QStringLiteral("\\x") + QString::number(character.unicode(), hexadecimal);
        else
            text += character;
        afterNumber = isNumber;
    }
    return text;
}

// QSettings marks values of other types with one @, and a text that begins with @ by another.
QString iniValue(const QString& value)
{
    constexpr QStringView delimiters = u",;=#";
    const auto text = escaped(value.startsWith(QLatin1Char('@')) ? QLatin1Char('@') + value : value);
    const bool isPlain = text == value && value.trimmed() == value &&
                         std::none_of(value.begin(), value.end(),
                                      [&](QChar character) { return delimiters.contains(character); });
    return isPlain ? text : QLatin1Char('"') + text + QLatin1Char('"');
}

// The character of an escape whose letter is the first of `rest`, which loses what belongs to it.
QChar takeEscape(QStringView& rest)
{
    const auto letter = rest.front();
    rest = rest.sliced(1);
    if (letter == QLatin1Char('x')) {
        qsizetype digits = 0;
        while (digits < rest.size() && isHexadecimal(rest[digits]))
            ++digits;
        const auto number = rest.first(digits).toUShort(nullptr, hexadecimal);
        rest = rest.sliced(digits);
        return {number};
    }
    for (const auto& escape : escapes) {
        if (letter == escape.letter)
            return {escape.character};
    }
    return letter;
}

QString valueOfIni(QStringView text)
{
    QString value;
    while (!text.isEmpty()) {
        const auto character = text.front();
        text = text.sliced(1);
        if (character == QLatin1Char('\\') && !text.isEmpty())
            value += takeEscape(text);
        else if (character != QLatin1Char('"'))
            value += character;
    }
    return value.startsWith(QLatin1String("@@")) ? value.mid(1) : value;
}

QString keyOf(const QString& section, const QString& key)
{
    return section.isEmpty() || section == generalSection ? key : section + QLatin1Char('/') + key;
}

} // namespace

QByteArray iniText(const QMap<QString, QVariant>& values)
{
    QMap<QString, QString> sections;
    for (auto value = values.begin(); value != values.end(); ++value) {
        const auto slash = value.key().indexOf(QLatin1Char('/'));
        const auto section = slash < 0 ? QString(generalSection) : value.key().left(slash);
        sections[section] += value.key().mid(slash + 1) + QLatin1Char('=') +
                             iniValue(value.value().toString()) + QLatin1Char('\n');
    }
    QString text;
    for (auto section = sections.begin(); section != sections.end(); ++section)
        text += (text.isEmpty() ? QStringLiteral("[%1]\n") : QStringLiteral("\n[%1]\n")).arg(section.key()) +
                section.value();
    return text.toUtf8();
}

QMap<QString, QVariant> valuesOfIniText(const QByteArray& text)
{
    QMap<QString, QVariant> values;
    QString section;
    const auto whole = QString::fromUtf8(text);
    for (const auto& untrimmed : QStringView(whole).split(u'\n')) {
        const auto line = untrimmed.trimmed();
        const auto equals = line.indexOf(u'=');
        if (line.startsWith(u'[') && line.endsWith(u']'))
            section = line.mid(1, line.size() - 2).toString();
        else if (!line.startsWith(u';') && !line.startsWith(u'#') && equals > 0)
            values.insert(keyOf(section, line.first(equals).trimmed().toString()),
                          valueOfIni(line.sliced(equals + 1).trimmed()));
    }
    return values;
}
