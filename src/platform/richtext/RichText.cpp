#include "platform/richtext/RichText.h"

namespace varnhold {

QString RichText::plainText() const
{
    QString text;
    for (const Paragraph& paragraph : paragraphs) {
        if (&paragraph != &paragraphs.front())
            text += u'\n';
        for (const Run& run : paragraph.runs)
            text += run.text;
    }
    return text;
}

} // namespace varnhold
