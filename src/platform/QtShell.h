#pragma once

#include "platform/Shell.h"

#include <QObject>

namespace varnhold {

/// The desktop's default programs and its file manager.
class QtShell : public QObject, public Shell
{
    Q_OBJECT

public:
    using QObject::QObject;

    void open(const QString& target) override;
    void openLink(const QString& link, std::function<void()> onFailure) override;
    /// Asks the file manager over the session bus to show the folder itself; opens the plain folder when
    /// none answers.
    void explore(const QString& folder) override;
};

} // namespace varnhold
