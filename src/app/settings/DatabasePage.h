#pragma once

#include "app/settings/SettingsPage.h"

namespace varnhold {

class SkinPage;

/// The database in use, how its list is ordered, and what is stored in it. The lower half is free for the
/// tables and the id list.
class DatabasePage : public SettingsPage
{
    Q_OBJECT

public:
    DatabasePage(Settings& settings, const SkinPage& skin);

    /// `text` in Label9(1).
    void askForDatabase(const QString& text);
    /// The same in the highlight colour.
    void thankForDatabase(const QString& text);

Q_SIGNALS:
    void btnOpen_Click();

private:
    void addOrder(Order which, const QString& heading, int left);

    const SkinPage& m_skin;
    QLineEdit* m_file;
    QLabel* m_request;
};

} // namespace varnhold
