#pragma once

#include "state/SettingsValues.h"

#include <optional>

namespace varnhold {

class Settings;
class SettingsFile;
struct ApplicationState;
struct Paths;

/// What the load does beyond filling values: the program's windows answer it. Called in the load's order.
class SettingsLoadHost
{
public:
    virtual ~SettingsLoadHost() = default;
    virtual void showStatus(const QString& text) = 0;  ///< lblLoading
    virtual void showMessage(const QString& text) = 0; ///< lblMessage
    virtual void startCertificateWatch() = 0;          ///< Timer1 on
    virtual void setBarMainTop(double twips) = 0;      ///< then Splitbar_Main, which writes its key
    virtual void setBarLeftTop(double twips) = 0;      ///< then Splitbar_Left, which writes its key
    virtual void applyOpacity(OpacityOf window, int value) = 0;
    virtual void loadCoverServers() = 0; ///< the last step
};

/// Reads all keys in their fixed order. Throws RunTimeError (13 a word in a numeric key, 6 overflow, 380 out
/// of the control's range) at the first value that does not fit; every key before it is in force.
/// `updateListUrl`: the default of "GameID Url".
void loadSettings(Settings& settings, SettingsFile& file, ApplicationState& state, const Paths& paths,
                  const QString& updateListUrl, SettingsLoadHost& host);

/// Main window position as stored, in twips; no value for an empty key. Read before the settings load; throws
/// as that does.
struct StoredPosition
{
    std::optional<double> left;
    std::optional<double> top;
};
StoredPosition readPosition(SettingsFile& file, ApplicationState& state);
/// "Miximize" as stored, read before the settings load; 1 when it is not 2.
int readLayout(SettingsFile& file, ApplicationState& state);

} // namespace varnhold
