#include "summaries/MovieReport.h"

#include "platform/toolkit/UIImage.h"
#include "resources/Resources.h"
#include "summaries/PeopleText.h"

namespace {

constexpr double coversPerView = 6;

TextStyle titleStyle()
{
    return {.fontFamily = QStringLiteral("Arial"), .fontSize = 21, .centred = true};
}

QString lineOf(const char* label, const std::optional<QString>& text)
{
    return text ? QString::fromLatin1(label) + *text + QLatin1Char('\n') : QString();
}

QString peopleLineOf(const char* label, const std::optional<QString>& people)
{
    return people ? lineOf(label, peopleOnOneLine(*people)) : QString();
}

QString extraLine(QString (*line)(const Movies&), const Movies& movie)
{
    return line != nullptr ? line(movie) + QLatin1Char('\n') : QString();
}

QString linesOf(const Movies& movie, const ReportKind& kind)
{
    return extraLine(kind.leadingLine, movie) + lineOf("Movie Name: ", movie.movieName()) +
           lineOf("Genre: ", movie.genre()) + extraLine(kind.lineAfterGenre, movie) +
           lineOf("Year: ", QString::number(movie.yearReleased())) +
           peopleLineOf("Actors: ", movie.actors()) + peopleLineOf("Directors: ", movie.directors()) +
           peopleLineOf("Producer: ", movie.producers()) + lineOf("Notes: ", movie.notes());
}

QSizeF scaledToWidth(const QSizeF& size, double width)
{
    return {width, width * size.height() / size.width()};
}

// Absent where `encoded` is no picture.
std::optional<TextAttachment> coverAttachment(const QByteArray& encoded, double width)
{
    const QSize size = imageSizeOfData(encoded);
    if (size.isEmpty())
        return std::nullopt;
    return TextAttachment{encoded, {}, scaledToWidth(size, width)};
}

TextAttachment pictureOf(const Movies& movie, double width)
{
    if (const auto cover = movie.frontCover())
        if (auto attachment = coverAttachment(*cover, width))
            return *attachment;
    return {{}, movieLogo(), scaledToWidth(movieLogo().size(), width)};
}

} // namespace

void makeAllTitle(NSAttributedString& text)
{
    text = NSAttributedString(text.string(), titleStyle());
}

void appendReportTitle(NSAttributedString& text, const QString& title)
{
    text.append(title + QStringLiteral("\n\n"));
    makeAllTitle(text);
}

void appendMovieBlock(NSAttributedString& text, const Movies& movie, const ReportKind& kind, double viewWidth)
{
    text.append(linesOf(movie, kind));
    text.append(pictureOf(movie, viewWidth / coversPerView));
    text.append(QStringLiteral("   \n\n"));
}
