#include "controls/XP_ProgressBar/ProgressLooks.h"

#include "controls/DesignValues.h"
#include "controls/XP_ProgressBar/ProgressColors.h"
#include "controls/XP_ProgressBar/ProgressMetrics.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

namespace look = design::progresslook;

constexpr ColorValue black = 0x000000;
constexpr ColorValue white = 0xFFFFFF;
constexpr ColorValue silver = 0xC0C0C0;

// One drawing. Rectangles of the looks are in bar coordinates: left and right run along the bar from its
// start, top and bottom across it, whichever way the bar stands.
class Looks
{
public:
    Looks(const ProgressState& state, ProgressSurface& surface)
        : m_state(state),
          m_surface(surface),
          m_metrics(state, surface.clientSize()),
          m_length(m_metrics.length()),
          m_breadth(m_metrics.breadth()),
          m_start(m_metrics.barStart()),
          m_end(m_metrics.barEnd())
    {
    }

    void draw()
    {
        fill(whole(), m_state.scrolling == look::metal ? black : white);
        switch (m_state.scrolling) {
        case look::pastel:
            DrawPastelProgressbar();
            break;
        case look::sunken:
            DrawJavTProgressbar();
            break;
        case look::office:
            DrawOfficeXPProgressbar();
            break;
        case look::metal:
            DrawMetalProgressbar();
            break;
        case look::brush:
            DrawCustomBrushProgressbar();
            break;
        case look::picture:
            DrawPictureProgressbar();
            break;
        case look::media:
            DrawMediaProgressbar();
            break;
        default:
            DrawProgressBar();
            if (m_state.scrolling == look::segmented)
                DrawDivisions();
            pDrawBorder();
        }
        DrawTexto();
    }

private:
    [[nodiscard]] BarRect whole() const { return {0, 0, m_length, m_breadth}; }
    void fill(const BarRect& rect, ColorValue color)
    {
        if (!rect.isEmpty())
            m_surface.fillRect(m_metrics.toClient(rect), color);
    }
    // A gradient across the bar: lines along it, from its upper (left, when it stands) side down.
    void shade(ColorValue first, ColorValue second, const BarRect& rect)
    {
        DrawGradient(first, second, m_metrics.toClient(rect), m_surface, !m_state.vertical);
    }
    [[nodiscard]] ColorValue shifted(int base) const { return ShiftColorXP(m_state.color, base); }
    [[nodiscard]] ColorValue darkened(int alpha) const { return BlendColor(m_state.color, black, alpha); }

    void DrawProgressBar();
    void DrawSearchBlocks();
    void DrawDivisions();
    void DrawPastelProgressbar();
    void DrawJavTProgressbar();
    void DrawOfficeXPProgressbar();
    void DrawMetalProgressbar();
    void DrawCustomBrushProgressbar();
    void DrawPictureProgressbar();
    void DrawMediaProgressbar();
    void pDrawBorder();
    void DrawTexto();
    void DrawAlphaText(const BarRect& at, const QString& text, ColorValue color);
    [[nodiscard]] ColorValue colorUnderText() const;

    const ProgressState& m_state;
    ProgressSurface& m_surface;
    ProgressMetrics m_metrics;
    int m_length;
    int m_breadth;
    int m_start;
    int m_end;
};

// Bands across the bar, symmetric: light to full colour over three rows from row 4, solid, and back. A
// narrow bar shares what it has between the two gradients.
void Looks::DrawProgressBar()
{
    if (m_state.scrolling == look::searching) {
        DrawSearchBlocks();
        return;
    }
    constexpr int top = 4;
    const int bottom = m_breadth - top;
    const int band = qMin(3, (bottom - top) / 2);
    shade(shifted(150), m_state.color, {m_start, top, m_end, top + band});
    fill({m_start, top + band, m_end, bottom - band}, m_state.color);
    shade(m_state.color, shifted(150), {m_start, bottom - band, m_end, bottom});
}

void Looks::DrawSearchBlocks()
{
    for (int block = 0; block < 3; ++block) {
        BarRect rect = m_metrics.searchBlock(block);
        rect.left = qMax(rect.left, 0);
        rect.right = qMin(rect.right, m_length);
        rect.bottom = qMin(rect.bottom, m_breadth);
        shade(shifted(220 - 40 * block), shifted(200 - 40 * block), rect);
    }
}

void Looks::DrawDivisions()
{
    for (const BarRect& space : m_metrics.divisions())
        fill(space, white);
}

void Looks::DrawPastelProgressbar()
{
    fill(whole(), shifted(100));
    fill({m_start, 1, m_end, m_breadth - 1}, shifted(180));
}

void Looks::DrawJavTProgressbar()
{
    m_surface.drawEdge(m_metrics.client(), EdgeKind::etched);
    shade(shifted(140), shifted(200), {m_start, 2, m_end, m_breadth - 3});
}

void Looks::DrawOfficeXPProgressbar()
{
    fill(whole(), shifted(10));
    shade(shifted(100), shifted(10), {2, 2, m_length - 2, 2 + m_breadth - 5});
    shade(shifted(100), shifted(250), {m_start, 3, m_end, 3 + m_breadth - 6});
    fill({m_end, 2, m_end + 1, m_breadth - 2}, shifted(25));
}

void Looks::DrawMetalProgressbar()
{
    fill(whole(), darkened(200));
    const ColorValue dark = darkened(100);
    shade(ShiftColorXP(dark, 10), dark, {m_start, 2, m_end, m_breadth - 2});
}

void Looks::DrawCustomBrushProgressbar()
{
    m_surface.drawEdge(m_metrics.client(), EdgeKind::bump);
    const BarRect inner{m_start, 2, m_end, m_breadth - 2};
    if (!inner.isEmpty())
        m_surface.fillHatch(m_metrics.toClient(inner), m_state.brushStyle, m_state.color, shifted(140));
}

void Looks::DrawPictureProgressbar()
{
    m_surface.drawEdge(m_metrics.client(), EdgeKind::sunken);
    const BarRect inner{m_start, 2, m_end, 2 + m_breadth - 4};
    if (!inner.isEmpty())
        m_surface.fillPicture(m_metrics.toClient(inner));
}

void Looks::DrawMediaProgressbar()
{
    const int middle = m_breadth / 2;
    const int bottom = m_breadth - 2;
    const int right = 2 + m_length - 3;
    shade(silver, white, {2, 2, right, middle});
    shade(white, silver, {2, middle, right, bottom});
    shade(shifted(150), darkened(180), {m_start, 2, m_end, middle});
    shade(darkened(190), shifted(150), {m_start, middle, m_end, bottom});
    pDrawBorder();
}

void Looks::pDrawBorder()
{
    constexpr ColorValue shadow = 0xBEBEBE;
    constexpr ColorValue glow = 0xEFEFEF;
    constexpr ColorValue frame = 0x686868;
    const BarRect client = m_metrics.client();
    const int width = client.width();
    const int height = client.height();
    const auto line = [this](int fromX, int fromY, int toX, int toY, ColorValue color) {
        m_surface.drawLine({fromX, fromY}, {toX, toY}, color);
    };
    line(2, 1, width - 2, 1, shadow);
    line(2, height - 2, width - 2, height - 2, glow);
    line(1, 2, 1, height - 2, shadow);
    line(2, 2, 2, height - 2, glow);
    line(2, 2, width - 2, 2, glow);
    line(width - 2, 2, width - 2, height - 2, glow);

    line(0, 0, width, 0, frame);
    line(0, height - 1, width, height - 1, frame);
    line(0, 0, 0, height, frame);
    line(width - 1, 0, width - 1, height, frame);
}

void Looks::DrawTexto()
{
    if (!m_state.showText)
        return;
    const QString text = progressText(m_state);
    const BarRect at = CalculateAlphaTextRect(m_surface.clientSize(), m_surface.textSize(text));
    const ColorValue color = m_state.scrolling == look::metal ? silver : GetLngColor(black);
    const BarRect bar = m_metrics.barInClient();
    const bool passed = m_state.vertical ? bar.top < at.bottom : bar.right > at.left;
    if (passed || m_state.scrolling == look::metal || m_state.scrolling == look::media)
        DrawAlphaText(at, text, color);
    else
        m_surface.drawText(at, m_metrics.client(), text, color);
}

// Two halves that meet at the bar's end: over the bar in a colour that stands out there, and the rest.
void Looks::DrawAlphaText(const BarRect& at, const QString& text, ColorValue color)
{
    BarRect over = m_metrics.client();
    BarRect beside = over;
    const BarRect bar = m_metrics.barInClient();
    if (m_state.vertical)
        over.top = beside.bottom = bar.top;
    else
        over.right = beside.left = bar.right;
    m_surface.drawText(at, over, text, contrastColor(colorUnderText()));
    m_surface.drawText(at, beside, text, color);
}

// The colour that most of the text over the bar lies on.
ColorValue Looks::colorUnderText() const
{
    switch (m_state.scrolling) {
    case look::searching:
        return white; // between and behind the blocks lies the bare track
    case look::pastel:
        return shifted(180);
    case look::sunken:
        return shifted(170);
    case look::office:
        return shifted(175);
    case look::metal:
        return darkened(100);
    case look::brush:
        return BlendColor(m_state.color, shifted(140), 170);
    case look::picture:
        return m_surface.pictureColor();
    case look::media:
        return darkened(120);
    default:
        return m_state.color;
    }
}

} // namespace

void PBarDraw(ProgressState& state, ProgressSurface& surface)
{
    state.clampForDrawing();
    Looks(state, surface).draw();
}

void DrawGradient(ColorValue first, ColorValue second, const BarRect& rect, ProgressSurface& surface,
                  bool vertical)
{
    if (rect.isEmpty())
        return;
    const int steps = vertical ? rect.height() : rect.width();
    for (int i = 0; i < steps; ++i) {
        const ColorValue color = gradientColor(first, second, i, steps);
        if (vertical)
            surface.fillRect({rect.left, rect.top + i, rect.right, rect.top + i + 1}, color);
        else
            surface.fillRect({rect.left + i, rect.top, rect.left + i + 1, rect.bottom}, color);
    }
}

QString progressText(const ProgressState& state)
{
    if (state.scrolling == look::searching)
        return u"Searching.."_s;
    return QString::number(state.percent()) + u" %"_s;
}

} // namespace varnhold
