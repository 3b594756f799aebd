// The pages of the settings window.

#include "app/settings/SettingsControls.h"
#include "app/settings/frmSettings.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "lookup/UpdateServers.h"
#include "platform/FileDialogs.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>

namespace varnhold {

using namespace Qt::StringLiterals;
using namespace settingspage;

void frmSettings::addCheck(QFrame& page, const char* name, const QString& caption, const QString& toolTip,
                           Check check, const QPoint& place)
{
    auto* box = new QCheckBox(caption, &page);
    box->setObjectName(QLatin1StringView(name));
    box->setToolTip(toolTip);
    box->setGeometry(QRect(place, QSize(controlWidth - place.x() + column, rowHeight)));
    // Also when it is the program that changes the box; not while it is filled.
    connect(box, &QCheckBox::toggled, this, [this, check](bool on) {
        if (!m_refreshing)
            m_services.settings.setChecked(check, on);
    });
    m_refreshers.emplace_back([this, box, check] { box->setChecked(m_services.settings.isChecked(check)); });
}

void frmSettings::addScroll(QFrame& page, const Scroll& scroll)
{
    auto* bar = new QScrollBar(Qt::Vertical, &page);
    bar->setObjectName(scroll.name);
    bar->setAccessibleName(scroll.accessibleName);
    bar->setRange(1, scroll.most);
    bar->setPageStep(1);
    bar->setFocusPolicy(Qt::StrongFocus);
    bar->setGeometry(QRect(scroll.place, QSize(14, 30)));
    auto* label = new QLabel(&page);
    label->setObjectName(scroll.labelName);
    label->setGeometry(scroll.labelPlace);
    connect(bar, &QScrollBar::valueChanged, this, [this, write = scroll.write](int value) {
        if (!m_refreshing)
            write(value);
    });
    m_refreshers.emplace_back([bar, label, read = scroll.read, text = scroll.text] {
        bar->setValue(read());
        label->setText(text());
    });
}

void frmSettings::buildDownload()
{
    QFrame& page = *addPage(u"Download"_s, "frm_Download", u"Settings: Download"_s);
    Settings& settings = m_services.settings;
    const auto addHeaded = [this, &page](Scroll scroll, int top) {
        auto* heading = new QLabel(scroll.accessibleName, &page);
        heading->setProperty("quiet", true);
        heading->setGeometry(column + 20, top + 6, 92, 18);
        scroll.place = {column, top};
        scroll.labelPlace = {column + 116, top + 6, 150, 18};
        addScroll(page, scroll);
    };
    addHeaded({.name = u"Vs_Server"_s,
               .labelName = u"lblServer"_s,
               .accessibleName = tr("Update server"),
               .most = 6,
               .read = [&settings] { return settings.server(); },
               .write = [&settings](int value) { settings.setServer(value); },
               .text =
                   [&settings] {
                       const UpdateServer* server = updateServer(settings.server());
                       return server == nullptr ? QString() : QString::fromUtf16(server->label);
                   }},
              4);
    addHeaded({.name = u"VScroll1"_s,
               .labelName = u"lblDLMax"_s,
               .accessibleName = tr("At a time"),
               .most = 5,
               .read = [&settings] { return settings.downloadMax(); },
               .write = [&settings](int value) { settings.setDownloadMax(value); },
               .text = [&settings] { return settings.downloadMaxText(); }},
              38);
    addCheck(page, "chk_UseDLD", u"Use Download Directory?"_s, {}, Check::UseDLD, {column, 74});
    addCheck(page, "chk_CGNFolder", u"Create [ Game Name ] folder?"_s, {}, Check::CGNFolder, {column, 96});
    addCheck(page, "chk_OWrite", u"Over write files on Multi DL?"_s, {}, Check::OWrite, {column, 118});
    addCheck(page, "chk_Previous", u"Download Previous Updates?"_s, {}, Check::Previous, {column, 140});
    auto* folder = addShownText(page, u"txt_SaveDir"_s, tr("Download folder"),
                                {column, 170, controlWidth - 64, rowHeight});
    folder->setPlaceholderText(tr("Download folder"));
    m_refreshers.emplace_back([this, folder] { showTagged(*folder, m_services.settings.saveDir()); });
    ButtonEx* choose = addButton(page, "btnSaveDir", tr("Select Download Folder"),
                                 {column + controlWidth - 56, 172, 56, 16});
    choose->setCaption(tr("Browse"));
    connect(choose, &ButtonEx::Click, this, &frmSettings::chooseSaveDir);
}

void frmSettings::chooseSaveDir()
{
    m_services.sounds.play(Sound::Click);
    const QString& current = m_services.settings.saveDir().tag;
    const QString chosen = m_services.dialogs.chooseFolder(
        u"Select Download Folder"_s, current.isEmpty() ? m_services.paths.root : current);
    if (!chosen.isEmpty())
        m_services.settings.setSaveDir(chosen);
}

void frmSettings::buildOptions()
{
    QFrame& page = *addPage(u"Options"_s, "frm_Options", u"Settings: Options"_s);
    addCheck(page, "chk_Fade", u"Fade Out"_s, u"On Exit: Fade Out?"_s, Check::Fade, {column, 4});
    addCheck(page, "chk_Exit", u"Exit?"_s, u"Confirm Exit: Are you sure you want to exit?"_s, Check::Exit,
             {column, 26});
    addCheck(page, "chk_Edge", u"Edge Detection"_s, u"Window edge detection."_s, Check::Edge, {column, 48});
    const struct
    {
        QString caption;
        QString toolTip;
        Check check;
    } boxes[] = {
        {u"Auto Cert. Vista+"_s, u"Auto ACCEPT SSL Certificate? Vista and Above"_s, Check::AutoSSL0},
        {u"Auto Cert. XP-"_s, u"Auto ACCEPT SSL Certificate? XP and Below."_s, Check::AutoSSL1},
    };
    const QString ways[] = {u"WM_KEYDOWN, WM_KEYUP"_s, u"BM_CLICK"_s};
    for (int i = 0; i < 2; ++i) {
        auto* box = new QCheckBox(boxes[i].caption, &page);
        box->setObjectName(indexed("chk_AutoSSL", i));
        box->setToolTip(boxes[i].toolTip);
        box->setGeometry(column, 82 + 22 * i, controlWidth, rowHeight);
        // The release decides, whatever the click did to the box: once one is on, neither can be cleared.
        connect(box, &QCheckBox::released, this, [this, i] {
            Q_EMIT autoSslReleased();
            m_services.settings.chooseAutoSsl(i);
        });
        const Check check = boxes[i].check;
        m_refreshers.emplace_back(
            [this, box, check] { box->setChecked(m_services.settings.isChecked(check)); });

        auto* way = new QRadioButton(ways[i], &page);
        way->setObjectName(indexed("optCert", i));
        way->setAutoExclusive(false); // both are off after a start without keys
        way->setGeometry(column + 20, 130 + 22 * i, controlWidth - 20, rowHeight);
        connect(way, &QRadioButton::clicked, this, [this, i] { m_services.settings.chooseCertOption(i); });
        m_refreshers.emplace_back([this, way, i] { way->setChecked(m_services.settings.certOption(i)); });
    }
}

void frmSettings::buildSounds()
{
    QFrame& page = *addPage(u"Sounds"_s, "frm_Sound", u"Settings: Sounds"_s);
    addCheck(page, "chk_Sounds_Click", u"Active"_s, u"Play Sounds"_s, Check::SoundsClick, {column, 4});
    const QString names[] = {u"Click"_s, u"Menu"_s, u"Open"_s, u"Close"_s};
    for (int i = 0; i < 4; ++i) {
        const int top = 34 + 28 * i;
        auto* row = new QRadioButton(names[i], &page);
        row->setObjectName(indexed("opt_Index", i));
        row->setGeometry(column, top, 64, rowHeight);
        row->setChecked(i == 0);
        auto* file = addShownText(page, indexed("txt_Sound", i), names[i],
                                  {column + 64, top, controlWidth - 64 - 100, rowHeight});
        m_refreshers.emplace_back([this, file, i] { showTagged(*file, m_services.settings.sound(i)); });
        ButtonEx* play = addButton(page, qPrintable(indexed("cmd_Play", i)), tr("Play %1").arg(names[i]),
                                   {column + controlWidth - 92, top + 3, 92, 14});
        play->setCaption(tr("Play"));
        connect(play, &ButtonEx::Click, this,
                [this, i] { m_services.sounds.playAlways(static_cast<Sound>(i)); });
    }
    auto* hint = new QLabel(tr("Change the chosen row"), &page);
    hint->setProperty("quiet", true);
    hint->setGeometry(column + 68, 150, controlWidth - 104, rowHeight);
    ButtonEx* choose =
        addButton(page, "cmdSound", tr("Choose a sound"), {column + controlWidth - 56, 152, 56, 16});
    choose->setCaption(tr("Browse"));
    connect(choose, &ButtonEx::Click, this, &frmSettings::chooseSound);
}

void frmSettings::chooseSound()
{
    m_services.sounds.play(Sound::Click);
    const auto chosen =
        m_services.dialogs.chooseFile({.title = {},
                                       .startFolder = {},
                                       .filter = u"Sound (*.mp3;*.wav)|*.mp3;*.wav|All Files (*.*)|*.*"_s,
                                       .defaultExtension = {},
                                       .fileName = {}});
    if (!chosen)
        return;
    for (int i = 0; i < 4; ++i) {
        if (findChild<QRadioButton*>(indexed("opt_Index", i))->isChecked())
            m_services.settings.setSound(i, {chosen->title, chosen->path});
    }
}

void frmSettings::buildUnwanted()
{
    QFrame& page = *addPage(u"UnWanted"_s, "frm_Unwanted", u"Settings: ReMove Un-Wanted strings"_s);
    addCheck(page, "chk_RemoveUnw", u"Remove Unwanted"_s, u"Remove Unwanted: Seperate with Comma ,"_s,
             Check::RemoveUnw, {column, 4});
    addCheck(page, "chk_Double", u"Dbl Spaces"_s, {}, Check::Double, {column, 26});
    addCheck(page, "chk_Colon", u"Colon: (Space)-"_s,
             u"Replace Colon with a space followed by dash - \" -\""_s, Check::Colon, {column + 112, 26});
    m_unwanted = new QPlainTextEdit(&page);
    m_unwanted->setObjectName("txtRemove"_L1);
    m_unwanted->setAccessibleName(tr("Unwanted strings"));
    m_unwanted->setTabChangesFocus(true);
    m_unwanted->setGeometry(column, 52, controlWidth, 112);
    m_unwanted->installEventFilter(this);
    m_count = new QLabel(&page);
    m_count->setObjectName("lblCount"_L1);
    m_count->setGeometry(column, 166, 120, 16);
    m_count->hide();
    m_warning = new QLabel(u"⚠"_s, &page);
    m_warning->setObjectName("img_Warning"_L1);
    m_warning->setAccessibleName(tr("Line breaks are not kept"));
    m_warning->setGeometry(column, 184, 16, 16);
    m_warning->hide();
    auto* limit = new QLabel(u"INI can only Read 1500 Characters long."_s, &page);
    limit->setProperty("quiet", true);
    limit->setGeometry(column + 20, 184, controlWidth - 20, 16);
    connect(m_unwanted, &QPlainTextEdit::textChanged, this, [this] {
        const QString text = m_unwanted->toPlainText().replace(u'\n', u"\r\n"_s);
        updateUnwantedTips();
        if (m_refreshing)
            return;
        m_count->setText(u"Chars:   %1"_s.arg(text.size()));
        m_count->show();
        m_services.settings.setUnwantedStrings(text);
    });
    m_refreshers.emplace_back([this] {
        const QString text = m_services.settings.unwantedStrings();
        if (m_unwanted->toPlainText().replace(u'\n', u"\r\n"_s) != text)
            m_unwanted->setPlainText(text);
    });
}

void frmSettings::updateUnwantedTips()
{
    const QString tip = u"Remove Unwanted: "_s + m_unwanted->toPlainText();
    m_unwanted->setToolTip(tip);
    findChild<QCheckBox*>("chk_RemoveUnw"_L1)->setToolTip(tip);
}

} // namespace varnhold
