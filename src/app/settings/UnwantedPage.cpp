#include "app/settings/UnwantedPage.h"

#include "platform/MessagePump.h"
#include "platform/ToolTipText.h"
#include "state/Settings.h"
#include "state/WaitLoop.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>

namespace varnhold {

using namespace Qt::StringLiterals;

UnwantedPage::UnwantedPage(Settings& settings, MessagePump& pump)
    : SettingsPage({"frm_Unwanted", u"UnWanted"_s, u"Settings: ReMove Un-Wanted strings"_s}, settings),
      m_pump(pump)
{
    m_remove = addCheck("chk_RemoveUnw", u"Remove Unwanted"_s, u"Remove Unwanted: Seperate with Comma ,"_s,
                        Check::RemoveUnw, {column, 4});
    addCheck("chk_Double", u"Dbl Spaces"_s, {}, Check::Double, {column, 26});
    addCheck("chk_Colon", u"Colon: (Space)-"_s, u"Replace Colon with a space followed by dash - \" -\""_s,
             Check::Colon, {column + 112, 26});
    addTextBox();
    m_count = addLabel(u"lblCount"_s, {}, {column, 166, 120, 16});
    m_count->hide();
    m_warning = addLabel(u"img_Warning"_s, u"⚠"_s, {column, 184, 16, 16});
    m_warning->setAccessibleName(tr("Line breaks are not kept"));
    m_warning->hide();
    addQuietLabel(u"INI can only Read 1500 Characters long."_s, {column + 20, 184, controlWidth - 20, 16});
    m_warnLater.setSingleShot(true);
    connect(&m_warnLater, &QTimer::timeout, this, &UnwantedPage::warn);
}

void UnwantedPage::addTextBox()
{
    m_text = new QPlainTextEdit(this);
    m_text->setObjectName("txtRemove"_L1);
    m_text->setAccessibleName(tr("Unwanted strings"));
    m_text->setTabChangesFocus(true);
    m_text->setGeometry(column, 52, controlWidth, 112);
    m_text->installEventFilter(this);
    connect(m_text, &QPlainTextEdit::textChanged, this, &UnwantedPage::onTextChanged);
    onRefresh([this] {
        const QString text = settings().unwantedStrings();
        if (m_text->toPlainText().replace(u'\n', u"\r\n"_s) != text)
            m_text->setPlainText(text);
    });
}

void UnwantedPage::onTextChanged()
{
    const QString text = m_text->toPlainText().replace(u'\n', u"\r\n"_s);
    updateTips();
    if (isRefreshing())
        return;
    m_count->setText(u"Chars:   %1"_s.arg(text.size()));
    m_count->show();
    settings().setUnwantedStrings(text);
}

void UnwantedPage::updateTips()
{
    const QString tip = toolTipText(u"Remove Unwanted: "_s + m_text->toPlainText());
    m_text->setToolTip(tip);
    m_remove->setToolTip(tip);
}

bool UnwantedPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_text && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        // The key itself goes its way: the file takes the first line, until a click of RemoveUnw joins all.
        if (key == Qt::Key_Control || key == Qt::Key_Return || key == Qt::Key_Enter)
            m_warnLater.start();
    }
    return SettingsPage::eventFilter(watched, event);
}

void UnwantedPage::warn()
{
    m_warning->show();
    Wait_Loop(1, m_pump);
    m_warning->hide();
}

} // namespace varnhold
