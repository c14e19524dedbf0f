#include "editing/MovieField.h"

#include "platform/foundation/Console.h"
#include "platform/foundation/Text.h"

MovieField trimmedField(const UITextInput* input, MovieTextSetter setter)
{
    return {input,
            [setter](Movies& movie, const QString& text) { (movie.*setter)(trimmingWhitespace(text)); }};
}

MovieField untrimmedField(const UITextInput* input, MovieTextSetter setter)
{
    return {input, [setter](Movies& movie, const QString& text) { (movie.*setter)(text); }};
}

MovieField numberField(const UITextInput* input, MovieNumberSetter setter)
{
    return {input, [setter](Movies& movie, const QString& text) {
                const std::optional<qint16> number = int16From(text);
                if (!number)
                    fatalError(QStringLiteral("\"%1\" is not a whole number from -32768 to 32767").arg(text));
                (movie.*setter)(*number);
            }};
}

void writeFields(const std::vector<MovieField>& fields, Movies& movie)
{
    for (const MovieField& field : fields) {
        const QString text = field.input->text();
        if (!text.isEmpty() || field.whenEmpty == MovieField::Empty::Written)
            field.write(movie, text);
    }
}
