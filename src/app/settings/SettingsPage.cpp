#include "app/settings/SettingsPage.h"

#include "controls/ButtonEx/ButtonEx.h"
#include "platform/ToolTipText.h"
#include "state/Settings.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

QString indexed(const char* name, int index)
{
    return u"%1(%2)"_s.arg(QLatin1StringView(name)).arg(index);
}

SettingsPage::SettingsPage(Heading heading, Settings& settings)
    : m_heading(std::move(heading)), m_settings(settings)
{
    setObjectName(QLatin1StringView(m_heading.name));
}

void SettingsPage::refresh()
{
    m_refreshing = true;
    for (const auto& refresher : m_refreshers)
        refresher();
    m_refreshing = false;
}

void SettingsPage::beginHalves(const Halves& halves)
{
    ButtonEx* const down = addButton(indexed("btnSkinUpDwn", halves.firstButton), tr("Lower half"),
                                     {column + controlWidth - 44, 196, 20, 14});
    ButtonEx* const up = addButton(indexed("btnSkinUpDwn", halves.firstButton + 1), tr("Upper half"),
                                   {column + controlWidth - 20, 196, 20, 14});
    auto* const window = new QWidget(this); // cuts away the half that does not show
    window->setGeometry(0, halves.top, column + controlWidth + column, halfHeight);
    auto* const frame = new QFrame(window);
    frame->setObjectName(QLatin1StringView(halves.frame));
    frame->setGeometry(0, 0, window->width(), 2 * halfHeight);
    m_body = frame;
    connect(down, &ButtonEx::Click, this, [this] { showHalf(1); });
    connect(up, &ButtonEx::Click, this, [this] { showHalf(0); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { showHalfOf(now); });
}

void SettingsPage::showHalf(int half)
{
    m_body->move(0, -half * halfHeight);
}

void SettingsPage::showHalfOf(const QWidget* control)
{
    if (control == nullptr || !m_body->isAncestorOf(control))
        return;
    showHalf(control->mapTo(m_body, QPoint(0, control->height() / 2)).y() < halfHeight ? 0 : 1);
}

QCheckBox* SettingsPage::addCheck(const char* name, const QString& caption, const QString& toolTip,
                                  Check check, const QPoint& place)
{
    auto* box = new QCheckBox(caption, m_body);
    box->setObjectName(QLatin1StringView(name));
    box->setToolTip(toolTip);
    box->setGeometry(QRect(place, QSize(controlWidth - place.x() + column, rowHeight)));
    // Also when it is the program that changes the box; not while it is filled.
    connect(box, &QCheckBox::toggled, this, [this, check](bool on) {
        if (!m_refreshing)
            m_settings.setChecked(check, on);
    });
    onRefresh([this, box, check] { box->setChecked(m_settings.isChecked(check)); });
    return box;
}

void SettingsPage::addScroll(const Scroll& scroll)
{
    auto* bar = new QScrollBar(Qt::Vertical, m_body);
    bar->setObjectName(scroll.name);
    bar->setAccessibleName(scroll.accessibleName);
    bar->setRange(1, scroll.most);
    bar->setPageStep(1);
    bar->setFocusPolicy(Qt::StrongFocus);
    bar->setGeometry(QRect(scroll.place, QSize(14, 30)));
    QLabel* label = addLabel(scroll.labelName, {}, scroll.labelPlace);
    connect(bar, &QScrollBar::valueChanged, this, [this, write = scroll.write](int value) {
        if (!m_refreshing)
            write(value);
    });
    onRefresh([bar, label, read = scroll.read, text = scroll.text] {
        bar->setValue(read());
        label->setText(text());
    });
}

ButtonEx* SettingsPage::addButton(const QString& name, const QString& toolTip, const QRect& place)
{
    auto* button = new ButtonEx(m_body);
    button->setObjectName(name);
    button->setCaption({});
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setGeometry(place);
    return button;
}

QLabel* SettingsPage::addLabel(const QString& name, const QString& text, const QRect& place)
{
    auto* label = new QLabel(text, m_body);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setGeometry(place);
    return label;
}

QLabel* SettingsPage::addQuietLabel(const QString& text, const QRect& place)
{
    QLabel* label = addLabel({}, text, place);
    label->setProperty("quiet", true);
    return label;
}

QLineEdit* SettingsPage::addShownText(const QString& name, const QString& accessibleName, const QRect& place)
{
    auto* box = new QLineEdit(m_body);
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    box->setReadOnly(true);
    box->setGeometry(place);
    return box;
}

void SettingsPage::showTagged(QLineEdit& box, const TaggedText& value)
{
    box.setText(value.text);
    box.setToolTip(toolTipText(value.tag));
}

} // namespace varnhold
