#include "appearance/ToolkitLook.h"

#include "appearance/FocusLine.h"
#include "appearance/ToolkitStyle.h"
#include "controls/Contrast.h"
#include "controls/SystemColorsUi.h"

#include <QApplication>
#include <QToolTip>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int textPixels = 11;
constexpr double readable = 4.5;
constexpr double visible = 3;

QColor mixed(const QColor& one, const QColor& other, double share)
{
    const auto channel = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return QColor(channel(one.red(), other.red()), channel(one.green(), other.green()),
                  channel(one.blue(), other.blue()));
}

struct Tones
{
    QColor text;
    QColor ground;
    QColor edge;
    QColor accent;
    QColor chosen; ///< ground of what is chosen
    QColor chosenText;
};

Tones tonesOf(const SkinColors& colors, ColorValue ground)
{
    const ColorValue fore = colors[0];
    if (contrastRatio(fore, ground) < readable)
        ground = contrastRatio(fore, colors[2]) < readable ? blackOrWhiteOn(fore) : colors[2];
    Tones tones;
    tones.text = toQColor(fore);
    tones.ground = toQColor(ground);
    tones.edge = mixed(tones.ground, tones.text, 0.3);
    // It draws lines and marks on both grounds; an accent that cannot be told from them is the text's colour.
    const ColorValue inks[] = {colors[1], fore};
    const ColorValue grounds[] = {ground, colors[2]};
    tones.accent = toQColor(firstThatStandsOut(inks, grounds, visible));
    // What is chosen must show on a menu's ground and on a field's, which is the back colour itself.
    tones.chosen = mixed(toQColor(colors[2]), tones.accent, 0.35);
    const ColorValue chosen = toColorValue(tones.chosen);
    tones.chosenText = contrastRatio(fore, chosen) < readable ? toQColor(blackOrWhiteOn(chosen)) : tones.text;
    return tones;
}

QPalette paletteOf(const Tones& tones)
{
    QPalette palette;
    palette.setColor(QPalette::Window, tones.ground);
    palette.setColor(QPalette::Base, tones.ground);
    palette.setColor(QPalette::AlternateBase, mixed(tones.ground, tones.text, 0.06));
    palette.setColor(QPalette::Button, mixed(tones.ground, tones.text, 0.12));
    palette.setColor(QPalette::ToolTipBase, tones.ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::BrightText}) {
        palette.setColor(role, tones.text);
        palette.setColor(QPalette::Disabled, role, mixed(tones.text, tones.ground, 0.45));
    }
    palette.setColor(QPalette::PlaceholderText, mixed(tones.text, tones.ground, 0.25));
    palette.setColor(QPalette::Highlight, tones.chosen);
    palette.setColor(QPalette::HighlightedText, tones.chosenText);
    palette.setColor(QPalette::Link, tones.accent);
    palette.setColor(QPalette::Light, mixed(tones.ground, tones.text, 0.4));
    palette.setColor(QPalette::Mid, tones.edge);
    palette.setColor(QPalette::Dark, mixed(tones.ground, tones.text, 0.55));
    return palette;
}

QString styleSheetOf(const Tones& tones)
{
    QString sheet = uR"(
QMenu { color: @text; background: @ground; border: 1px solid @edge; padding: 4px 0; menu-scrollable: 1; }
QMenu::scroller { height: 16px; }
QMenu::item { padding: 4px 28px 4px 8px; }
QMenu::icon { padding-left: 6px; }
QMenu::item:selected { background: @chosen; color: @chosenText; }
QMenu::item:disabled { color: @dim; background: transparent; }
QMenu::separator { height: 1px; background: @edge; margin: 4px 8px; }
QMenu::icon:checked { border: 1px solid @accent; background: @chosen; }
QToolTip { color: @text; background: @ground; border: 1px solid @edge; padding: 2px 4px; }
QHeaderView { background: transparent; }
QHeaderView::section { color: @text; background: @raised; border: none;
    border-right: 1px solid @edge; border-bottom: 1px solid @edge; padding: 2px 4px; }
QAbstractScrollArea::corner { background: transparent; border: none; }
)"_s;
    const std::pair<QString, QColor> names[] = {{u"@chosenText"_s, tones.chosenText},
                                                {u"@chosen"_s, tones.chosen},
                                                {u"@text"_s, tones.text},
                                                {u"@ground"_s, tones.ground},
                                                {u"@dim"_s, mixed(tones.text, tones.ground, 0.45)},
                                                {u"@edge"_s, tones.edge},
                                                {u"@accent"_s, tones.accent},
                                                {u"@raised"_s, mixed(tones.ground, tones.text, 0.12)}};
    for (const auto& [name, color] : names)
        sheet.replace(name, color.name());
    return sheet;
}

} // namespace

void setUpToolkitLook(QApplication& application)
{
    QApplication::setStyle(new ToolkitStyle); // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): it takes it
    QFont font = QApplication::font();
    font.setPixelSize(textPixels);
    QApplication::setFont(font);
    application.setStyleSheet({});
    new FocusLine(application);
}

void colorToolkit(const SkinColors& colors, ColorValue ground)
{
    const Tones tones = tonesOf(colors, ground);
    const QPalette palette = paletteOf(tones);
    if (palette != QApplication::palette())
        QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    // Otherwise a widget that meets another style sheet gets back the palette that it had when it met the
    // first.
    QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
    const QString sheet = styleSheetOf(tones);
    if (sheet != qApp->styleSheet())
        qApp->setStyleSheet(sheet);
}

void dressScrollBars(const MorphListDesign& design)
{
    if (auto* const style = qApp->findChild<ToolkitStyle*>())
        style->setScrollBarDesign(design);
}

} // namespace varnhold
