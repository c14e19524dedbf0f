#include "platform/pdf/PdfCharacterMaps.h"

#include "platform/pdf/PdfObjects.h"

#include <QRegularExpression>

namespace {

// Each character of these scripts is drawn by a glyph of its own, and they stand in the order of the text.
bool isOfPlainScript(QChar unit)
{
    switch (unit.script()) {
    case QChar::Script_Common:
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
        return !unit.isMark() && !unit.isSurrogate();
    default:
        return false;
    }
}

bool isDrawn(QChar unit)
{
    return !unit.isSpace() && unit.category() != QChar::Other_Control &&
           unit != QChar::ObjectReplacementCharacter;
}

} // namespace

PdfCharacterMaps meanCharacters(PdfObjects& objects, const CodeUnits& ofText)
{
    static const QRegularExpression font(QStringLiteral(R"(/(F\d+) (\d+) 0 R)"));
    PdfCharacterMaps maps;
    for (const int page : objects.pages()) {
        const QByteArray resources = objects.description(objects.reference(page, "/Resources"));
        for (auto fonts = font.globalMatch(QString::fromLatin1(resources)); fonts.hasNext();) {
            const QRegularExpressionMatch found = fonts.next();
            const QByteArray name = found.captured(1).toLatin1();
            const int stream = objects.reference(found.captured(2).toInt(), "/ToUnicode");
            if (stream == 0 || maps.contains(name))
                continue;
            PdfCharacterMap map(objects.stream(stream));
            map.meanCharacters(ofText);
            objects.replaceStream(stream, map.content());
            maps.emplace(name, std::move(map));
        }
    }
    return maps;
}

bool mapsSuffice(const PdfCharacterMaps& maps, const CodeUnits& ofText)
{
    CodeUnits given;
    for (const auto& [name, map] : maps)
        map.addTo(given);
    for (std::size_t unit = 0; unit < ofText.size(); ++unit) {
        const QChar character(static_cast<char16_t>(unit));
        if (ofText[unit] && isDrawn(character) && !(given[unit] && isOfPlainScript(character)))
            return false;
    }
    return true;
}
