#pragma once

#include <QObject>
#include <QString>

class QLocalServer;

namespace varnhold {

/// Tells whether this process is the first one that works in a program folder, for this user. The first one
/// listens for later ones that ask it to come to the front; the claim ends with the object or the process,
/// however that ends.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstance(const QString& root, QObject* parent = nullptr);
    ~SingleInstance() override;

    /// True also where no claim can be made at all: the program then runs unguarded.
    [[nodiscard]] bool isFirst() const { return m_first; }

    /// For a later one: asks the first to come to the front. True when it answered; waits at most the given
    /// time, without running events.
    [[nodiscard]] bool askFirst(int timeoutMilliseconds = 2000) const;

Q_SIGNALS:
    /// To the first one: a later start asks it to come to the front. It has been answered already.
    void activationRequested();

private:
    void listen();

    QString m_name; ///< full path without extension, of lock and socket
    QLocalServer* m_server = nullptr;
    int m_lock = -1;
    bool m_first = true;
};

} // namespace varnhold
