#include "gamedb/EntryEditor.h"

#include "covers/ThroughFile.h"
#include "gamedb/EntryEditorView.h"
#include "gamedb/Statements.h"
#include "platform/BusyPointer.h"
#include "platform/FileDialogs.h"
#include "platform/MessageBoxes.h"
#include "platform/ReadFile.h"
#include "platform/pictures/PictureHeader.h"
#include "platform/richtext/RichTextFile.h"
#include "platform/richtext/RtfWriter.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <algorithm>
#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestPicture = qint64{256} << 20;

/// Neither text nor a kept group. Notes of one picture alone are notes.
bool isEmpty(const RichText& notes)
{
    const auto holdsGroup = [](const RichText::Run& run) { return !run.verbatim.isEmpty(); };
    return notes.plainText().isEmpty() &&
           std::ranges::none_of(notes.paragraphs, [&](const RichText::Paragraph& paragraph) {
               return std::ranges::any_of(paragraph.runs, holdsGroup);
           });
}

QString streamOf(const RichText& notes)
{
    return QString::fromLatin1(writeRtf(notes));
}

/// What follows a "." at the second to the fifth place from the end, the second first.
QString fileExtensionOf(const QString& path)
{
    for (int place = 2; place <= 5; ++place) {
        if (place <= path.size() && path.at(path.size() - place) == u'.')
            return path.right(place - 1);
    }
    return u"Unknown"_s;
}

QString notesFilter()
{
    return u" Text Document (*.txt)|*.txt| Rich Text Format (*.rtf)|*.rtf"_s;
}

} // namespace

EntryEditor::EntryEditor(Services services) : m_services(std::move(services)) {}

template <typename Body> bool EntryEditor::reporting(Body&& body)
{
    return varnhold::reporting(m_services.boxes, DescriptionLabel::WithBlank, [&] {
        const auto busy = busyPointer(m_services.view); // gone before a report shows
        body();
    });
}

void EntryEditor::mnuLBAdd_Click()
{
    m_services.sounds.play(Sound::Click);
    openToAdd();
}

void EntryEditor::openToAdd()
{
    const EntryHost& host = m_services.host;
    if (host.gameIdText().isEmpty())
        return;
    copyFields();
    fillAndOpen(u"Adding Database Entry - "_s + host.gameIdText() + u" - "_s + host.info(), EntrySave::New,
                u"Save as a new entry"_s);
}

void EntryEditor::openToEdit()
{
    EntryHost& host = m_services.host;
    if (host.gameIdText().isEmpty())
        return;
    if (!host.showsLoadedEntry()) {
        // A key's release or a skin took the notes or the picture away; to save what is left would wipe them.
        host.loadEntry();
        if (host.gameCount() > 0 && !host.showsLoadedEntry())
            return;
    }
    if (!takeMainPicture())
        return;
    m_row = m_services.database.loadedKey;
    copyFields();
    fillAndOpen(u"Editing Database Entry - "_s + host.gameIdText() + u" - "_s + host.info(), EntrySave::Over,
                u"Save over "_s + m_row);
}

void EntryEditor::CmdNewRecord_Click()
{
    EntryEditorView& view = m_services.view;
    resetEntryEditor();
    view.offer(EntrySave::New, u"Save as a new entry"_s);
    view.setUnchanged();
    view.open();
    view.readFont();
    view.focusGameId();
}

void EntryEditor::copyFields()
{
    EntryEditorView& view = m_services.view;
    view.setGameId(m_services.host.gameIdText());
    view.setGameName(m_services.host.info());
    view.fillNotes(m_services.host.notes());
}

void EntryEditor::fillAndOpen(const QString& caption, EntrySave which, const QString& toolTip)
{
    EntryEditorView& view = m_services.view;
    view.setCaption(caption);
    view.offer(which, toolTip);
    view.unlockNotes();
    view.setUnchanged();
    view.open();
    view.readFont();
    view.focusNotes();
}

/// What the main window shows becomes the entry's picture, its own or not, which is meant.
bool EntryEditor::takeMainPicture()
{
    const bool isTaken = varnhold::reporting(m_services.boxes, DescriptionLabel::WithBlank, [&] {
        const auto busy = busyPointer(m_services.host);
        const QByteArray shown = m_services.host.pictureAsBitmap();
        if (shown.isEmpty()) {
            m_services.database.PicBytes.clear();
            m_services.view.showBlankPicture();
            return;
        }
        const QByteArray bytes = throughFile(m_services.paths.root, shown);
        takePicture(bytes);
        if (!m_services.view.showPicture(bytes))
            throw RunTimeError(errors::invalidPicture);
    });
    if (!isTaken)
        dropPicture();
    return isTaken;
}

void EntryEditor::takePicture(const QByteArray& file)
{
    m_services.database.PicBytes = file + '\0'; // one byte more than the file, which is meant
}

void EntryEditor::dropPicture()
{
    m_services.database.PicBytes.clear();
    m_services.view.showBlankPicture();
    m_services.view.setImageLabel({});
}

void EntryEditor::resetEntryEditor()
{
    EntryEditorView& view = m_services.view;
    view.setCaption(u"New Database Entry"_s);
    view.setGameId({});
    view.setGameName({});
    view.fillNotes({});
    view.unlockNotes();
    dropPicture();
}

void EntryEditor::leave()
{
    dropPicture();
}

void EntryEditor::CmdAdd_Click()
{
    m_services.sounds.play(Sound::Click);
    const auto asksFor = [this](const QString& table) {
        return m_services.boxes.show({u"Add NEW DB Entry to "_s + table + u'?', u"New Entry"_s,
                                      BoxIcon::Question, BoxButtons::YesNo}) == BoxAnswer::Yes;
    };
    QString table = m_services.settings.orderText(Order::DBTable);
    if (!asksFor(table)) {
        const QString games = u"PS3Games"_s;
        if (!asksFor(table == games ? u"PS3Personal"_s : games))
            return;
        table = games; // whichever was asked about, which is meant
    }
    if (!reporting([&] { writeNew(table); }))
        return;
    m_services.view.setUnchanged();
    resetEntryEditor();
    m_services.boxes.show(
        {u"Database has been updated."_s, u"Add New Record"_s, BoxIcon::Information, BoxButtons::Ok});
    m_services.view.setUnchanged();
    if (m_services.view.isShown())
        m_services.view.close();
}

void EntryEditor::cmdUpdate_Click()
{
    m_services.sounds.play(Sound::Click);
    if (!reporting([this] { writeOver(); }))
        return;
    m_services.host.clearPreview();
    m_services.view.setUnchanged();
    resetEntryEditor();
    m_services.boxes.show(
        {u"Database has been updated."_s, m_services.title, BoxIcon::Information, BoxButtons::Ok});
    m_services.view.setUnchanged();
    if (m_services.view.isShown())
        m_services.view.close();
}

void EntryEditor::connectAnew()
{
    m_records.reset();
    m_path = m_services.settings.idList().tag;
    m_connectionString = connectionString(m_path);
    m_connection = std::make_unique<DatabaseConnection>(m_services.database.watch());
    m_connection->Open(m_connectionString);
    m_records = std::make_unique<Recordset>();
}

void EntryEditor::writeNew(const QString& table)
{
    const EntryEditorView& view = m_services.view;
    connectAnew();
    m_SQLText = statements::table(table);
    m_records->Open(m_SQLText, *m_connection);
    m_records->AddNew();
    // The lists grow whichever table it is and before the row is stored: a refused one leaves its id and its
    // name there. This is meant.
    if (const QString id = view.gameId(); !id.isEmpty()) {
        m_records->setValue(u"GameID"_s, id);
        m_services.host.addGame(id);
    }
    if (const QString name = view.gameName(); !name.isEmpty()) {
        m_records->setValue(u"GameName"_s, name);
        m_services.host.addTitle(name);
    }
    if (const RichText notes = view.notes(); !isEmpty(notes))
        m_records->setValue(u"GameNotes"_s, streamOf(notes));
    if (!view.imageLabel().isEmpty())
        m_records->AppendChunk(u"GameImage"_s, m_services.database.PicBytes);
    m_records->Update();
    m_records->UpdateBatch();
    m_records->Close();
    m_connection->Close();
}

void EntryEditor::writeOver()
{
    const EntryEditorView& view = m_services.view;
    connectAnew();
    m_SQLText = statements::update(m_services.settings.orderText(Order::DBTable), m_row);
    m_records->Open(m_SQLText, *m_connection);
    if (const QString id = view.gameId(); !id.isEmpty())
        m_records->setValue(u"GameID"_s, id);
    if (const QString name = view.gameName(); !name.isEmpty())
        m_records->setValue(u"GameName"_s, name);
    const RichText notes = view.notes();
    m_records->setValue(u"GameNotes"_s, isEmpty(notes) ? u""_s : streamOf(notes));
    m_records->AppendChunk(u"GameImage"_s, m_services.database.PicBytes); // also an empty one
    m_records->Update();
    m_records->UpdateBatch();
    m_records->Close();
    m_connection->Close();
}

void EntryEditor::CmdBrowse_Click()
{
    const auto file = m_services.dialogs.chooseFile(
        {.title = {},
         .startFolder = {},
         .filter = u"All Supported Files|*.jpeg;*.jpg;*.gif;*.bmp;*.png|PNG Files(*.png)|*.png|"
                   "Jpeg Files(*.jpeg)|*.jpeg|Jpg Files(*.jpg)|*.jpg|"
                   "Gif Files(*.gif)|*.gif|Bitmap Files(*.bmp)|*.bmp"_s,
         .defaultExtension = {},
         .fileName = {}});
    if (!file)
        return;
    EntryEditorView& view = m_services.view;
    if (fileExtensionOf(file->path.toLower()) == u"png") {
        const bool isTaken = reporting([&] {
            view.showPngFile(file->path); // where it cannot, what showed before is what is stored
            view.setImageLabel(file->title);
            if (const QByteArray shown = view.pictureAsBitmap(); !shown.isEmpty())
                takePicture(throughFile(m_services.paths.root, shown));
            else
                m_services.database.PicBytes.clear();
        });
        if (!isTaken)
            m_services.database.PicBytes.clear();
        return;
    }
    reporting([&] {
        const QByteArray bytes = readFile(file->path, largestPicture);
        // What is stored is a bitmap, a JPEG or a GIF; other kinds come by their own way.
        if (pictureKind(bytes) == PictureKind::Png || !view.showPicture(bytes))
            throw RunTimeError(errors::invalidPicture);
        view.setImageLabel(file->title);
        takePicture(bytes);
    });
}

void EntryEditor::CmdBrowse_RightClick()
{
    dropPicture();
}

void EntryEditor::cmdOpen_Click()
{
    const auto file = m_services.dialogs.chooseFile(
        {.title = {}, .startFolder = {}, .filter = notesFilter(), .defaultExtension = {}, .fileName = {}});
    if (!file)
        return;
    EntryEditorView& view = m_services.view;
    if (!reporting([&] { view.replaceNotes(loadNotes(file->path)); }))
        return;
    view.setFileLabel(file->title, file->path);
    view.setCaption(u"File: "_s + file->title);
    view.focusNotes();
}

void EntryEditor::cmdSave_Click()
{
    EntryEditorView& view = m_services.view;
    if (isEmpty(view.notes()))
        return;
    const auto file = m_services.dialogs.chooseSavePath({.title = u"Save Info As"_s,
                                                         .startFolder = {},
                                                         .filter = notesFilter(),
                                                         .defaultExtension = {},
                                                         .fileName = view.gameId(),
                                                         .asksBeforeOverwriting = true});
    if (!file)
        return;
    const auto save = [&] {
        if (file->filter == 1) {
            savePlainText(file->path, view.notes().plainText());
            return;
        }
        view.unlockNotes();
        view.blackenNotes(); // in the editor too, which is meant
        saveRtf(file->path, view.notes());
    };
    if (!reporting(save))
        return;
    view.setSaveLabel(file->title, file->path);
    view.setCaption(u"File Saved as: "_s + file->title);
}

void deleteEntry(SharedDatabase& database, const Settings& settings, MessageBoxes& boxes, EntryHost& host)
{
    if (host.gameCount() == 0)
        return;
    const QString id = host.selectedGameText();
    database.DBKey = id;
    if (id.isEmpty())
        return;
    const QString question =
        u"This will permanently delete\r\n\r\n'"_s + id + u"'\r\n\r\nDo you want to proceed?"_s;
    if (boxes.show({question, u"Delete Record"_s, BoxIcon::Question, BoxButtons::YesNo}) != BoxAnswer::Yes)
        return;
    const auto remove = [&] {
        const auto busy = busyPointer(host);
        database.connect();
        database.remove(statements::deleteEntry(settings.orderText(Order::DBTable), id));
        database.DBConn.Close();
    };
    if (!database.reporting(remove))
        return;
    host.removeRow(host.selectedRow());
    host.deselect();
    host.clearPreview();
    boxes.show({u"Command completed successfully!"_s, id + u" - Record Deleted!"_s, BoxIcon::Information,
                BoxButtons::Ok});
}

} // namespace varnhold
