#pragma once

#include "state/SettingsValues.h"

#include <QObject>

namespace varnhold {

class SettingsFile;

/// The live settings: what the controls of the settings window hold, in front of Settings.ini. Reading is
/// never from the file. A setter writes its key at once and then raises changed(); failing writes are
/// ignored. Where a control tells only of changes, so does its setter: it does nothing for a value that it
/// holds. Values are what the control would hold, not what the file holds: texts untrimmed and of any length,
/// an opacity of 10.
class Settings : public QObject
{
    Q_OBJECT

public:
    explicit Settings(SettingsFile& file, QObject* parent = nullptr);

    [[nodiscard]] const SettingsValues& values() const { return m_values; }
    /// For the load: what is changed here is not written, and nothing is raised.
    [[nodiscard]] SettingsValues& unwrittenValues() { return m_values; }

    [[nodiscard]] bool isChecked(Check check) const;
    /// The box's click: writes also when the state stays. RemoveUnw writes "Unwanted Strings" too, without
    /// its line ends.
    void setChecked(Check check, bool on);

    [[nodiscard]] int server() const { return m_values.server; }
    void setServer(int value); ///< outside 1 to 6: RunTimeError 380
    [[nodiscard]] int downloadMax() const { return m_values.downloadMax; }
    [[nodiscard]] QString downloadMaxText() const; ///< lblDLMax
    void setDownloadMax(int value);                ///< outside 1 to 5: RunTimeError 380

    [[nodiscard]] const TaggedText& saveDir() const { return m_values.saveDir; }
    void setSaveDir(const QString& path); ///< shows the path's last component
    [[nodiscard]] const TaggedText& sound(int index) const { return m_values.sounds.at(index); }
    void setSound(int index, const TaggedText& sound);
    [[nodiscard]] const TaggedText& covers() const { return m_values.covers; }
    void setCovers(const TaggedText& covers);
    [[nodiscard]] const TaggedText& listUrl() const { return m_values.listUrl; }
    void setListUrl(const TaggedText& url);
    [[nodiscard]] const TaggedText& idList() const { return m_values.idList; }
    void setIdList(const TaggedText& database);     ///< shows the database's size on disk too
    void setIdListOnly(const TaggedText& database); ///< leaves lblFSize as it is
    [[nodiscard]] const QString& databaseSize() const { return m_values.databaseSize; } ///< lblFSize
    void setDatabaseSize(const QString& text) { m_values.databaseSize = text; }         ///< no key holds it

    [[nodiscard]] const QString& unwantedStrings() const { return m_values.unwantedStrings; }
    /// Line ends are CR LF and are kept here; the file takes the first line only, until the box of RemoveUnw
    /// is clicked.
    void setUnwantedStrings(const QString& text);

    /// Both can be off after a start without keys; a click sets one and clears the other.
    [[nodiscard]] bool certOption(int index) const { return m_values.cert.at(index); }
    void chooseCertOption(int index);
    /// The release of chk_AutoSSL(index): that box on, the other off, both keys written.
    void chooseAutoSsl(int index);

    [[nodiscard]] int order(Order which) const;
    [[nodiscard]] QString orderText(Order which) const; ///< lblOrder caption
    [[nodiscard]] QString orderTag(Order which) const;  ///< lblOrder tag: "Asc" or "Desc", else empty
    void setOrder(Order which, int value);              ///< outside 1 to 2: RunTimeError 380

    [[nodiscard]] int opacity(OpacityOf window) const; ///< as stored, 0 to 255
    void setOpacity(OpacityOf window, int value);      ///< outside 0 to 255: RunTimeError 380

    /// Keys that no control of the settings window holds.
    void writeLayout(int layout); ///< "Miximize": 1 normal, 2 enlarged
    void writePosition(double leftTwips, double topTwips);
    void writeBarMain(double topTwips);
    void writeBarLeft(double topTwips);
    void writeSkinPath(const QString& path);
    void writeSkinName(const QString& name);

Q_SIGNALS:
    /// After any setter of a value. Listeners read what they show; never raised while settings load.
    void changed();

private:
    void write(const QString& key, const QString& value);
    void writeTagged(const QString& textKey, const QString& tagKey, TaggedText& held,
                     const TaggedText& value);

    SettingsFile& m_file;
    SettingsValues m_values;
};

/// Throws RunTimeError 380 for a value that the control refuses.
void checkRange(int value, int least, int most);

} // namespace varnhold
