#include "platform/QtFontDialog.h"

#include "platform/FrontWindow.h"

#include <QFontDialog>
#include <QFontInfo>

namespace varnhold {

std::optional<FontChoice> QtFontDialog::chooseFont(const FontChoice& first)
{
    QFont font(first.name);
    if (first.points > 0)
        font.setPointSizeF(first.points);
    font.setBold(first.bold);
    font.setItalic(first.italic);
    font.setUnderline(first.underline);
    font.setStrikeOut(first.strikeThrough);
    bool accepted = false;
    const QFont chosen = QFontDialog::getFont(&accepted, font, frontWindow());
    if (!accepted)
        return std::nullopt;
    const double points = chosen.pointSizeF();
    return FontChoice{.name = chosen.family(),
                      .points = points > 0 ? points : QFontInfo(chosen).pointSizeF(),
                      .bold = chosen.bold(),
                      .italic = chosen.italic(),
                      .underline = chosen.underline(),
                      .strikeThrough = chosen.strikeOut()};
}

} // namespace varnhold
