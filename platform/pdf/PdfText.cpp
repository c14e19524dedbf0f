#include "platform/pdf/PdfText.h"

#include "platform/pdf/PdfObjects.h"
#include "platform/pdf/PdfUnseenFont.h"

namespace {

class PdfPages
{
public:
    explicit PdfPages(PdfObjects& file)
        : objects(file)
        , pages(file.pages())
    {
    }

    void addReplacementText(const std::function<PdfPageItems(int page)>& itemsOf,
                            const PdfCharacterMaps& maps)
    {
        for (std::size_t number = 0; number < pages.size(); ++number) {
            const int stream = objects.reference(pages[number], "/Contents");
            const QByteArray content = objects.stream(stream);
            const QByteArray readable = withReplacementText(content, itemsOf(static_cast<int>(number)), maps);
            if (readable == content)
                continue;
            objects.replaceStream(stream, readable);
            if (readable.contains('/' + pdfUnseenFontName + ' '))
                addUnseenFontTo(objects.reference(pages[number], "/Resources"));
        }
    }

private:
    void addUnseenFontTo(int resources)
    {
        const QByteArray fonts = "/Font <<\n";
        if (unseenFont == 0)
            unseenFont = addPdfUnseenFont(objects);
        const QByteArray font = '/' + pdfUnseenFontName + ' ' + QByteArray::number(unseenFont) + " 0 R\n";
        objects.replace(resources, objects.description(resources).replace(fonts, fonts + font));
    }

    PdfObjects& objects;
    const std::vector<int> pages;
    int unseenFont = 0;
};

} // namespace

void makeTextReadable(QByteArray& pdf, const CodeUnits& ofText,
                      const std::function<PdfPageItems(int page)>& itemsOf)
{
    PdfObjects objects(pdf);
    const PdfCharacterMaps maps = meanCharacters(objects, ofText);
    if (!mapsSuffice(maps, ofText))
        PdfPages(objects).addReplacementText(itemsOf, maps);
    objects.appendChanges();
}
