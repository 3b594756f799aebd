#include "app/settings/DatabasePage.h"

#include "appearance/SkinPage.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/SystemColorsUi.h"
#include "platform/ToolTipText.h"
#include "state/Settings.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QStyle>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

// The faces fix the widths.
constexpr QSize wideFace{92, 14};
constexpr QSize longFace{128, 16};
constexpr int secondColumn = 148;

} // namespace

void DatabasePage::buildIdList()
{
    constexpr int top = halfHeight + 4;
    constexpr int longestUrl = 254; // what the settings give back
    const int right = column + controlWidth - wideFace.width();
    const QRect place(column, top, right - column - 8, 18);
    m_listName = addLabel(u"lblListUrl"_s, {}, place);
    m_listUrl = new QLineEdit(body());
    m_listUrl->setObjectName("txtListUrl"_L1);
    m_listUrl->setAccessibleName(tr("Address of the id list"));
    m_listUrl->setMaxLength(longestUrl);
    m_listUrl->setGeometry(place);
    m_listUrl->hide();
    m_editUrl = addButton(u"cmd_ListUrl"_s, tr("Address of the id list"), {{right, top + 2}, wideFace});
    m_editUrl->setCaption(u"Edit"_s);
    connect(m_editUrl, &ButtonEx::Click, this, &DatabasePage::toggleListUrl);
    connect(m_listUrl, &QLineEdit::returnPressed, this, &DatabasePage::toggleListUrl);
    onRefresh([this] {
        const TaggedText& url = settings().listUrl();
        m_listName->setText(url.text);
        m_listName->setToolTip(toolTipText(url.tag));
    });

    m_check = addButton(u"cmd_Check"_s, tr("Compare the id list here with the one on the update host"),
                        {{column, top + 23}, wideFace});
    m_check->setCaption(u"Check Update?"_s);
    m_check->setAccessibleName(u"Check Update?"_s);
    connect(m_check, &ButtonEx::Click, this, &DatabasePage::cmd_Check_Click);
    m_update = addButton(u"cmd_IDUpdate"_s, tr("Fetch the id list and import it"),
                         {{secondColumn, top + 22}, longFace});
    m_update->setCaption(u"Download Update"_s);
    m_update->setAccessibleName(u"Download Update"_s);
    m_update->setEnabled(false);
    connect(m_update, &ButtonEx::Click, this, &DatabasePage::cmd_IDUpdate_Click);
    m_checkText = new QPlainTextEdit(body());
    m_checkText->setObjectName("txt_Check"_L1);
    m_checkText->setAccessibleName(tr("Outcome of the check"));
    m_checkText->setReadOnly(true);
    m_checkText->setTabChangesFocus(true);
    m_checkText->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_checkText->setTabStopDistance(m_checkText->fontMetrics().horizontalAdvance(u"Available: "_s));
    m_checkText->setGeometry(column, top + 42, controlWidth, 46);
}

void DatabasePage::toggleListUrl()
{
    const bool isEdited = m_listUrl->isVisibleTo(this);
    if (isEdited) {
        const QString url = m_listUrl->text();
        settings().setListUrl({url.mid(url.lastIndexOf(u'/') + 1), url});
    } else {
        m_listUrl->setText(settings().listUrl().tag);
    }
    m_listUrl->setVisible(!isEdited);
    m_listName->setVisible(isEdited);
    m_editUrl->setCaption(isEdited ? u"Edit"_s : u"OK"_s);
    if (isEdited)
        refresh();
    else
        m_listUrl->setFocus();
}

void DatabasePage::showCheck(const QString& text, bool available)
{
    m_checkText->setPlainText(text);
    m_available = available;
    m_update->setEnabled(available);
}

void DatabasePage::disableUpdate()
{
    m_available = false;
    m_update->setEnabled(false);
}

void DatabasePage::setCheckBusy(bool busy)
{
    m_check->setEnabled(!busy);
    m_update->setEnabled(!busy && m_available);
}

void DatabasePage::buildTables()
{
    constexpr int top = halfHeight + 96;
    m_tables = new QListWidget(body());
    m_tables->setObjectName("lstTables"_L1);
    m_tables->setAccessibleName(tr("Tables of the database"));
    m_tables->setGeometry(column, top, secondColumn - column - 8, 70);
    connect(m_tables, &QListWidget::currentTextChanged, this, [this](const QString& name) {
        if (!name.isEmpty()) // a list that is emptied keeps what was chosen
            Q_EMIT lstTables_Click(name);
    });
    const auto addStep = [this](int index, const QString& caption, const QString& toolTip,
                                const QRect& place) {
        ButtonEx* const button = addButton(indexed("cmd_Tables", index), toolTip, place);
        button->setCaption(caption);
        connect(button, &ButtonEx::Click, this, [this, index] { Q_EMIT cmd_Tables_Click(index); });
    };
    addStep(0, tr("Get Tables"), u"Get Tables from Database"_s, {{secondColumn, top}, wideFace});
    m_outcome = addLabel(u"imgWarning"_s, {}, {secondColumn + longFace.width() - 14, top, 14, 14});
    m_outcome->setAlignment(Qt::AlignCenter);
    m_tableName = new QLineEdit(body());
    m_tableName->setObjectName("txt_Table"_L1);
    m_tableName->setAccessibleName(tr("New name of the table"));
    m_tableName->setPlaceholderText(tr("New table name"));
    m_tableName->setGeometry(secondColumn, top + 17, longFace.width(), 18);
    addStep(1, tr("Rename Table"), tr("Give the table clicked in the list this name"),
            {{secondColumn, top + 38}, longFace});
    addStep(2, u"Compact and Repair"_s, u"Compact and Repair"_s, {{secondColumn, top + 56}, longFace});
}

void DatabasePage::showOutcome(DatabasePageView::Outcome outcome)
{
    using Outcome = DatabasePageView::Outcome;
    m_outcome->setText(outcome == Outcome::None ? QString() : outcome == Outcome::Good ? u"✓"_s : u"✗"_s);
    m_outcome->setAccessibleName(outcome == Outcome::None   ? QString()
                                 : outcome == Outcome::Good ? tr("Done")
                                                            : tr("Not done"));
    m_outcome->repaint();
}

void DatabasePage::refreshFileSize(bool highlighted)
{
    QPalette palette = m_size->palette();
    if (highlighted)
        palette.setColor(QPalette::WindowText, toQColor(m_skin.Shape_Color[SkinPage::Highlight]));
    m_size->setPalette(palette);
    m_size->setText(settings().databaseSize());
    m_size->repaint();
}

} // namespace varnhold
