// How the entry editor's window is put together.

#include "controls/ButtonEx/ButtonEx.h"
#include "covers/CoverBox.h"
#include "gamedb/EditorNotes.h"
#include "gamedb/EntryEditor.h"
#include "gamedb/frmDB.h"
#include "lookup/GameIdBox.h"
#include "platform/Accessible.h"
#include "platform/CaptionDrag.h"
#include "platform/ElidedLabel.h"
#include "platform/PictureBox.h"
#include "platform/Twips.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize windowSize{595, 385};
constexpr QRect captionPlace{8, 3, 560, 16};
constexpr QRect closePlace{573, 4, 14, 14};
constexpr QRect idPlace{9, 29, 92, 18};
constexpr QRect namePlace{106, 29, 180, 18};
constexpr QRect notesPlace{9, 52, 277, 324};
constexpr QRect picturePlace{296, 29, 132, 152};
constexpr QRect browsePlace{438, 31, 14, 14};
constexpr QRect imagePlace{458, 29, 128, 18};
constexpr QRect savePlace{546, 165, 40, 16};
constexpr QRect backPlace{295, 193, 292, 184};

// Inside picBack: three columns, whose rows begin below a panel's header.
constexpr int edge = 4;
constexpr int columnPitch = 96;
constexpr int rowPitch = 16;
constexpr QSize face{92, 14};
constexpr int panelWidth = 2 * columnPitch + face.width();
constexpr int barWidth = 60;
constexpr int longestTwips = 2880;
constexpr int stepTwips = 60;
constexpr int pageTwips = 360;

QRect cell(int column, int row)
{
    return {QPoint(column * columnPitch, row * rowPitch), face};
}

/// Cells from this column to the end of the row.
QRect restOfRow(int column, int row)
{
    const QRect first = cell(column, row);
    return {first.topLeft(), QSize(panelWidth - first.x(), face.height())};
}

QString indexed(const char* name, int index)
{
    return QLatin1StringView(name) + u'(' + QString::number(index) + u')';
}

struct Tool
{
    const char* caption;
    const char* toolTip;
    int panel;
    int column;
    int row; ///< from 1, below the header
};

constexpr std::array<Tool, 15> tools{{
    {"Left", "Left Alignment", 1, 0, 1},
    {"Center", "Center Alignment", 1, 1, 1},
    {"Right", "Right Alignment", 1, 2, 1},
    {"lower case", "LCase(Selected Text)", 0, 0, 2},
    {"UPPER CASE", "UCase(Selected Text)", 0, 1, 2},
    {"Font Menu", "Menu", 0, 2, 2},
    {"Bold", "Bold", 0, 0, 1},
    {"Italic", "Italic", 0, 1, 1},
    {"Underline", "Underline", 0, 2, 1},
    {"Strikethrough", "Strikethrough", 0, 0, 3},
    {"Indent", "Indent", 2, 0, 1},
    {"Bullet", "Bullet", 2, 2, 1},
    {"Right Indent", "Right Indent", 2, 0, 3},
    {"Hanging Indent", "Hanging Indent", 2, 1, 1},
    {"Right Margin", "Right Margin", 2, 1, 3},
}};
constexpr int menuTool = 5;

/// The ground of the panels, with a line round each.
class PanelGround : public PictureBox
{
public:
    using PictureBox::PictureBox;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        PictureBox::paintEvent(event);
        QPainter painter(this);
        QColor line = palette().color(QPalette::WindowText);
        constexpr int faint = 50;
        line.setAlpha(faint);
        painter.setPen(line);
        for (const QWidget* const panel : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            painter.drawRect(panel->geometry().adjusted(-2, -1, 1, -1));
    }
};

} // namespace

frmDB::frmDB(Services services) : ShapedWindow(nullptr), m_services(std::move(services))
{
    setObjectName("frmDB"_L1);
    setFixedSize(windowSize);
    buildCaption();
    buildEntry();
    buildPanels();
    buildTools();
    buildLengths();
    buildFiles();
    setCaption(u"New Database Entry"_s);
    offer(EntrySave::New, {});
    // Behind all else in the tab order.
    setTabOrder(m_save, m_winState);
}

ButtonEx* frmDB::addButton(const QString& name, QWidget& parent, const QString& caption,
                           const QString& toolTip)
{
    auto* button = new ButtonEx(&parent);
    button->setObjectName(name);
    button->setAppearance(2);
    button->setCaption(caption);
    button->setToolTip(toolTip);
    button->setAccessibleName(caption.isEmpty() ? toolTip : caption);
    return button;
}

ElidedLabel* frmDB::addLabel(const char* name, QWidget& parent, const QString& description)
{
    auto* label = new ElidedLabel(&parent);
    label->setObjectName(QLatin1StringView(name));
    label->setAccessibleDescription(description); // its name is its text
    return label;
}

void frmDB::buildCaption()
{
    m_caption = addLabel("lblCaption", *this, tr("Window name"));
    auto* drag =
        new CaptionDrag(*this, m_services.screen,
                        {.store = {},
                         .snaps = [this] { return m_services.settings.isChecked(Check::Edge); },
                         .keepWorkArea = [this](const WorkArea& area) { m_services.state.workArea = area; }});
    drag->addHandle(*m_caption);
    m_winState = addButton(u"btn_WinState(1)"_s, *this, {}, tr("Close"));
    connect(m_winState, &ButtonEx::Click, this, [this] { hide(); });
}

void frmDB::buildEntry()
{
    m_id = new GameIdBox(m_services.boxes, this, GameIdBox::Use::Entry);
    m_id->setObjectName("txtGameID"_L1);
    m_id->setAccessibleName(tr("Game ID"));
    m_id->setPlaceholderText(tr("Game ID"));
    m_name = new QLineEdit(this);
    m_name->setObjectName("txtGameName"_L1);
    m_name->setAccessibleName(tr("Name"));
    m_name->setPlaceholderText(tr("Name"));
    m_notes = new EditorNotes(this);
    m_notes->setObjectName("txtGameNotes"_L1);
    m_notes->setAccessibleName(tr("Notes"));
    m_notes->setPlaceholderText(tr("Notes"));
    m_notes->setFrameShape(QFrame::NoFrame); // the window's picture draws the well
    connect(m_notes, &EditorNotes::menuWanted, this, &frmDB::mnuRTXTWanted);
    connect(m_notes, &QTextEdit::selectionChanged, this, &frmDB::readFont);
    connect(m_notes, &QTextEdit::currentCharFormatChanged, this, &frmDB::readFont);

    m_picture = new CoverBox(this);
    m_picture->setObjectName("PicPreview"_L1);
    m_picture->setAccessibleName(tr("Picture"));
    m_picture->setToolTip(tr("Open the cover"));
    connect(m_picture, &CoverBox::activated, this, &frmDB::pictureClicked);
    tellAssistiveTools(*m_picture, {.role = QAccessible::Graphic, .press = [this] { pictureClicked(); }});
    m_browse = addButton(u"CmdBrowse"_s, *this, {}, u"Left=Open / Right=Clear"_s);
    m_browse->setAccessibleName(tr("Choose a picture"));
    m_browse->installEventFilter(this);
    connect(m_browse, &ButtonEx::Click, this, [this] { m_editor->CmdBrowse_Click(); });
    connect(m_browse, &ButtonEx::MouseUp, this, [this](int button) {
        constexpr int right = 2;
        if (button == right)
            m_editor->CmdBrowse_RightClick();
    });
    m_image = addLabel("lblImage", *this, tr("Picture file"));
    m_add = addButton(u"CmdAdd"_s, *this, tr("Add"), {});
    connect(m_add, &ButtonEx::Click, this, [this] { m_editor->CmdAdd_Click(); });
    m_update = addButton(u"cmdUpdate"_s, *this, tr("Save"), {});
    connect(m_update, &ButtonEx::Click, this, [this] { m_editor->cmdUpdate_Click(); });
}

void frmDB::buildPanels()
{
    m_picBack = new PanelGround(this);
    m_picBack->setObjectName("picBack"_L1);
    const QString names[] = {tr("Font"), tr("Alignment"), tr("Indent"), tr("Open / Save")};
    for (int i = 0; i < EditorPanels::count; ++i) {
        const auto index = static_cast<std::size_t>(i);
        m_frames.at(index) = new QWidget(m_picBack);
        m_frames.at(index)->setObjectName(indexed("picFrame", i));
        m_headers.at(index) = addButton(indexed("cmd_Collapse", i), *m_frames.at(index), {}, names[i]);
        auto* name = new QLabel(names[i], m_frames.at(index));
        name->setGeometry(restOfRow(1, 0));
        connect(m_headers.at(index), &ButtonEx::Click, this, [this, i] {
            m_panels.cmd_Collapse_Click(i);
            stackPanels();
        });
    }
}

void frmDB::buildTools()
{
    // In the order in which they stand, which is the tab order too.
    for (int panel = 0; panel < EditorPanels::count; ++panel) {
        for (int place = 0; place < 3 * 4; ++place) {
            for (std::size_t i = 0; i < tools.size(); ++i) {
                const Tool& tool = tools.at(i);
                if (tool.panel != panel || tool.row - 1 != place / 3 || tool.column != place % 3)
                    continue;
                const int index = static_cast<int>(i);
                m_tools.at(i) =
                    addButton(indexed("cmd_Tools", index), *m_frames.at(static_cast<std::size_t>(panel)),
                              QLatin1StringView(tool.caption), QLatin1StringView(tool.toolTip));
                connect(m_tools.at(i), &ButtonEx::Click, this, [this, index] {
                    if (index != menuTool)
                        cmd_Tools_Click(index);
                    else
                        Q_EMIT mnuFormatWanted(m_tools[menuTool]->mapToGlobal(QPoint(0, face.height())));
                });
            }
        }
    }
    m_font = addLabel("lblFont", *m_frames[0], tr("Font at the caret"));
    m_swatch = new QFrame(m_frames[0]);
    m_swatch->setObjectName("shapeColor"_L1);
    m_swatch->setFrameShape(QFrame::Box);
    m_swatch->setAutoFillBackground(true);
    m_swatch->setAccessibleName(tr("Colour at the caret"));
    m_swatch->setToolTip(m_swatch->accessibleName());
}

frmDB::Length frmDB::addLength(const char* bar, const char* label, int index, const QString& accessibleName,
                               int twips)
{
    auto* slider = new QScrollBar(Qt::Horizontal, m_frames[2]);
    slider->setObjectName(indexed(bar, index));
    slider->setAccessibleName(accessibleName);
    slider->setToolTip(accessibleName);
    slider->setFocusPolicy(Qt::StrongFocus);
    slider->setRange(stepTwips, longestTwips);
    slider->setSingleStep(stepTwips);
    slider->setPageStep(pageTwips);
    slider->setValue(twips);
    auto* number = new QLabel(QString::number(twips), m_frames[2]);
    number->setObjectName(indexed(label, index));
    number->setAccessibleDescription(accessibleName);
    number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(slider, &QScrollBar::valueChanged, number, qOverload<int>(&QLabel::setNum));
    return {slider, number};
}

void frmDB::buildLengths()
{
    constexpr int usual = 360;
    constexpr int wide = 720;
    m_indents[1] = addLength("vsIndent", "lblIndent", 1, tr("Indent in twips"), usual);
    m_indents[2] = addLength("vsIndent", "lblIndent", 2, tr("Hanging indent in twips"), usual);
    m_indents[0] = addLength("vsIndent", "lblIndent", 0, tr("Bullet indent in twips"), usual);
    m_margins[0] = addLength("vsMargin", "lblMargin", 0, tr("Right indent in twips"), wide);
    m_margins[1] = addLength("vsMargin", "lblMargin", 1, tr("Right margin in twips"), wide);
}

void frmDB::buildFiles()
{
    QWidget& frame = *m_frames[3];
    m_open = addButton(u"cmdOpen"_s, frame, tr("Open"), tr("Load the notes from a file"));
    connect(m_open, &ButtonEx::Click, this, [this] { m_editor->cmdOpen_Click(); });
    m_save = addButton(u"cmdSave"_s, frame, tr("Save As"), tr("Save the notes to a file"));
    connect(m_save, &ButtonEx::Click, this, [this] { m_editor->cmdSave_Click(); });
    m_file = addLabel("lblFile", frame, tr("File loaded"));
    m_saved = addLabel("lblSave", frame, tr("File saved"));
    for (ElidedLabel* const label : {m_file, m_saved})
        label->installEventFilter(this);
}

void frmDB::layOut()
{
    m_isLaidOut = true;
    m_caption->setGeometry(captionPlace);
    m_winState->setGeometry(closePlace);
    m_id->setGeometry(idPlace);
    m_name->setGeometry(namePlace);
    m_notes->setGeometry(notesPlace);
    m_picture->setGeometry(picturePlace);
    m_browse->setGeometry(browsePlace);
    m_image->setGeometry(imagePlace);
    m_add->setGeometry(savePlace);
    m_update->setGeometry(savePlace);
    m_picBack->setGeometry(backPlace);
    for (ButtonEx* const header : m_headers)
        header->setGeometry(cell(0, 0));
    for (std::size_t i = 0; i < tools.size(); ++i)
        m_tools.at(i)->setGeometry(cell(tools.at(i).column, tools.at(i).row));
    const QRect swatch = cell(1, 3);
    m_swatch->setGeometry(swatch.x(), swatch.y() + 1, 12, 12);
    m_font->setGeometry(restOfRow(1, 3).adjusted(rowPitch + edge, 0, 0, 0));
    const auto place = [](const Length& length, int column, int row) {
        const QRect whole = cell(column, row);
        length.bar->setGeometry(whole.x(), whole.y(), barWidth, whole.height());
        length.label->setGeometry(whole.adjusted(barWidth, 0, 0, 0));
    };
    place(m_indents[1], 0, 2);
    place(m_indents[2], 1, 2);
    place(m_indents[0], 2, 2);
    place(m_margins[0], 0, 4);
    place(m_margins[1], 1, 4);
    m_open->setGeometry(cell(0, 1));
    m_file->setGeometry(restOfRow(1, 1));
    m_save->setGeometry(cell(0, 2));
    m_saved->setGeometry(restOfRow(1, 2));
    stackPanels();
}

void frmDB::stackPanels()
{
    for (int i = 0; i < EditorPanels::count; ++i) {
        const auto index = static_cast<std::size_t>(i);
        const bool isOpen = m_panels.isOpen(i);
        ButtonEx& header = *m_headers.at(index);
        header.setCaption(isOpen ? u"<<<"_s : u">>>"_s);
        header.setAccessibleName(
            (isOpen ? tr("Close the panel: %1") : tr("Open the panel: %1")).arg(header.toolTip()));
        QWidget& frame = *m_frames.at(index);
        const int top = pixelsFromTwips(m_panels.top(i));
        const int bottom = pixelsFromTwips(m_panels.top(i) + m_panels.height(i));
        frame.setGeometry(edge, edge + top, panelWidth, bottom - top);
        // What a closed panel hides takes no turn in the tab order.
        for (QWidget* const control : frame.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            control->setVisible(isOpen || control->y() < face.height());
    }
    ReDraw_PicFrame();
}

void frmDB::ReDraw_PicFrame()
{
    m_picBack->update();
}

} // namespace varnhold
