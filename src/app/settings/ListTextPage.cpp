#include "app/settings/ListTextPage.h"

#include "state/Settings.h"
#include "state/Sounds.h"
#include "tools/ReportText.h"

#include <QCheckBox>
#include <QLabel>
#include <QPainter>
#include <QTextOption>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int secondColumn = 144;
constexpr int rowPitch = 22;
constexpr int sampleTop = 96;
constexpr qreal valueColumn = 44; // behind the widest label

/// Text in which every TAB leads to one column.
class ColumnLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QTextOption option;
        option.setTabStopDistance(valueColumn);
        option.setWrapMode(QTextOption::NoWrap);
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRectF(contentsRect()), text(), option);
    }
};

} // namespace

ListTextPage::ListTextPage(Settings& settings, Sounds& sounds)
    : SettingsPage({"frm_Listtext", u"List>Text"_s, u"Settings: List to Text"_s}, settings), m_sounds(sounds)
{
    const QString captions[] = {u"Game ID/Name"_s, u"Pkg Version"_s, u"System Version"_s, u"Size"_s,
                                u"SHA1"_s,         u"Link"_s,        u"Front Text"_s};
    for (int i = 0; i < 7; ++i) {
        const QPoint place(i < 4 ? column : secondColumn, 4 + rowPitch * (i % 4));
        addLine(i, captions[i], place);
    }
    addQuietLabel(tr("Sample"), {column, sampleTop, controlWidth, 16});
    m_sample = new ColumnLabel(this);
    m_sample->setObjectName("lblExample"_L1);
    m_sample->setGeometry(column, sampleTop + 18, controlWidth, 96);
    m_sample->setAccessibleDescription(tr("Sample"));
    onRefresh([this] { showSample(); });
}

void ListTextPage::addLine(int index, const QString& caption, const QPoint& place)
{
    auto* const box = new QCheckBox(caption, this);
    box->setObjectName(indexed("chk_ListText", index));
    if (index == 6)
        box->setToolTip(u"Show front text \"PKg ver, Sys Ver, Size, SHA1, Link\""_s);
    box->setGeometry({place, QSize(120, rowHeight)});
    m_boxes.at(static_cast<std::size_t>(index)) = box;
    const auto check = static_cast<Check>(static_cast<int>(Check::ListText0) + index);
    connect(box, &QCheckBox::toggled, this, [this, check](bool on) {
        if (isRefreshing())
            return;
        m_sounds.play(Sound::Click);
        showSample();
        settings().setChecked(check, on);
    });
    onRefresh([this, box, check] { box->setChecked(settings().isChecked(check)); });
}

void ListTextPage::showSample()
{
    ReportLines lines;
    for (int i = 0; i < ReportLines::Count; ++i)
        lines.set(static_cast<ReportLines::Line>(i), m_boxes.at(static_cast<std::size_t>(i))->isChecked());
    m_sample->setText(reportSample(lines));
}

} // namespace varnhold
