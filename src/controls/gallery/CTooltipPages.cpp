#include "controls/CTooltip/TipPainter.h"
#include "controls/gallery/GalleryPage.h"
#include "controls/gallery/GallerySheet.h"

#include <QPainter>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// A tip that stands on the page instead of a window of its own.
class TipSample : public QWidget
{
public:
    explicit TipSample(const TipContent& content) : m_content(content)
    {
        m_content.font = font();
        TipRequest request;
        request.body = tipBodySize(m_content, QSize(340, 300));
        request.balloon = m_content.balloon;
        request.pointer = QPoint(1000, 1000);
        request.screen = QRect(0, 0, 2000, 2000);
        m_place = placeTip(request);
        resize(m_place.window.size());
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        paintTip(painter, m_content, m_place, tipShape(m_place, m_content.balloon));
    }

private:
    TipContent m_content;
    TipPlace m_place;
};

QWidget* page()
{
    const QString text = u"Package Version:  01.02\r\n\u00a7ystem Version:    03.55\r\n"
                         "\u00a7ize:                      12.50 MB (13107200 bytes)\r\n"
                         "Url:                        http://host/a/b/EP0000-GAME00000_00-A0102-V0100.pkg"_s;
    auto* sheet = new GallerySheet(780);
    for (const bool balloon : {true, false}) {
        sheet->heading(balloon ? u"Style 1, balloon"_s : u"Style 0, rectangle"_s);
        for (const int icon : {0, 1, 2, 3, 4}) {
            TipContent content;
            content.balloon = balloon;
            content.icon = icon;
            content.title = icon == 0 ? QString() : u"Title %1"_s.arg(icon);
            content.text = icon == 1 ? text : u"A line of text\nand a\ttab"_s;
            sheet->add(new TipSample(content), u"Icon %1"_s.arg(icon));
        }
        TipContent dark;
        dark.balloon = balloon;
        dark.icon = 1;
        dark.title = u"Own back colour"_s;
        dark.text = u"The platform's text colour\nstays readable"_s;
        dark.backColor = 0x402C20;
        sheet->add(new TipSample(dark), u"BackColor"_s);
        dark.textColor = 0xFFE07A;
        dark.title = u"Both colours"_s;
        sheet->add(new TipSample(dark), u"ForeColor, BackColor"_s);
    }
    return sheet->finish();
}

} // namespace

GalleryPages tooltipPages()
{
    return {{u"ctooltip"_s, u"CTooltip"_s, page}};
}

} // namespace varnhold
