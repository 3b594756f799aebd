// What the entry editor's tools do to its notes.

#include "controls/SystemColorsUi.h"
#include "gamedb/EditorNotes.h"
#include "gamedb/frmDB.h"
#include "platform/ColorDialog.h"
#include "platform/ElidedLabel.h"
#include "platform/FontDialog.h"
#include "platform/ToolTipText.h"
#include "platform/richtext/RichTextTools.h"

#include <QFontInfo>
#include <QLabel>
#include <QScrollBar>

#include <cmath>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr double halfPointsPerPoint = 2;

void setLetters(QTextCursor& selection, LetterStyle style, std::optional<bool> SelectedLetters::*of, bool on)
{
    if (selectedLetters(selection).*of == on)
        return;
    toggle(selection, style);
    if (selectedLetters(selection).*of != on) // letters of both kinds first take it
        toggle(selection, style);
}

} // namespace

void frmDB::editNotes(const std::function<void(QTextCursor&)>& change)
{
    if (m_notes->Locked())
        return;
    m_notes->edit(change);
    m_notes->setFocus();
    readFont();
}

void frmDB::cmd_Tools_Click(int index)
{
    const int bullet = m_indents[0].bar->value();
    const int indent = m_indents[1].bar->value();
    const int hanging = m_indents[2].bar->value();
    const int right = m_margins[0].bar->value();
    const int view = m_margins[1].bar->value();
    const std::function<void(QTextCursor&)> changes[] = {
        [](QTextCursor& text) { setAlignment(text, RichText::Alignment::Left); },
        [](QTextCursor& text) { setAlignment(text, RichText::Alignment::Center); },
        [](QTextCursor& text) { setAlignment(text, RichText::Alignment::Right); },
        [](QTextCursor& text) { changeCase(text, LetterCase::Lower); },
        [](QTextCursor& text) { changeCase(text, LetterCase::Upper); },
        {},
        [](QTextCursor& text) { toggle(text, LetterStyle::Bold); },
        [](QTextCursor& text) { toggle(text, LetterStyle::Italic); },
        [](QTextCursor& text) { toggle(text, LetterStyle::Underline); },
        [](QTextCursor& text) { toggle(text, LetterStyle::Strikethrough); },
        [=](QTextCursor& text) { toggleIndent(text, indent); },
        [=](QTextCursor& text) { toggleBullet(text, bullet); },
        [=](QTextCursor& text) { toggleRightIndent(text, right); },
        [=](QTextCursor& text) { toggleHangingIndent(text, hanging); },
        [this, view](QTextCursor&) { m_notes->setRightMargin(m_notes->RightMargin() == 0 ? view : 0); },
    };
    if (const auto& change = changes[index])
        editNotes(change);
}

void frmDB::applyColor(quint32 color)
{
    editNotes([color](QTextCursor& text) { setColor(text, color); });
    showColor(color);
}

void frmDB::showColor(quint32 stored)
{
    m_color = stored;
    QPalette palette = m_swatch->palette();
    palette.setColor(QPalette::Window, toQColor(stored));
    m_swatch->setPalette(palette);
}

void frmDB::mnuColor_Click()
{
    m_notes->setFocus();
    if (const auto chosen = m_services.colors.chooseColor(u"FontColor"_s, m_color))
        applyColor(*chosen);
}

void frmDB::mnuFont_Click()
{
    m_notes->setFocus();
    const SelectedLetters letters = selectedLetters(m_notes->textCursor());
    int halfPoints = letters.halfPoints.value_or(0);
    if (halfPoints == 0)
        halfPoints = RichText::ownHalfPoints;
    const auto chosen = m_services.fonts.chooseFont({.name = selectedFont(),
                                                     .points = halfPoints / halfPointsPerPoint,
                                                     .bold = letters.bold.value_or(false),
                                                     .italic = letters.italic.value_or(false),
                                                     .underline = letters.underline.value_or(false),
                                                     .strikeThrough = letters.strikethrough.value_or(false)});
    if (!chosen)
        return;
    editNotes([&chosen](QTextCursor& text) {
        text.beginEditBlock();
        varnhold::setFont(text, chosen->name);
        setHalfPoints(text, static_cast<int>(std::lround(chosen->points * halfPointsPerPoint)));
        setLetters(text, LetterStyle::Bold, &SelectedLetters::bold, chosen->bold);
        setLetters(text, LetterStyle::Italic, &SelectedLetters::italic, chosen->italic);
        setLetters(text, LetterStyle::Underline, &SelectedLetters::underline, chosen->underline);
        setLetters(text, LetterStyle::Strikethrough, &SelectedLetters::strikethrough, chosen->strikeThrough);
        text.endEditBlock();
    });
}

QString frmDB::selectedFont() const
{
    const std::optional<QString> name = selectedLetters(m_notes->textCursor()).font;
    return name && !name->isEmpty() ? *name : QFontInfo(m_notes->font()).family();
}

void frmDB::readFont()
{
    const SelectedLetters letters = selectedLetters(m_notes->textCursor());
    const QString own = QFontInfo(m_notes->font()).family();
    m_font->setText(!letters.font ? QString() : letters.font->isEmpty() ? own : *letters.font);
    m_font->setToolTip(toolTipText(m_font->text()));
    // Of letters in several colours, and of those in the box's own, it shows none but black.
    showColor(letters.color.value_or(std::nullopt).value_or(0));
    unlockNotes();
}

} // namespace varnhold
