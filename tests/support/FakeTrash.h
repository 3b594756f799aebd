#pragma once

#include "platform/RunTimeError.h"
#include "platform/Trash.h"

#include <QFile>
#include <QStringList>

namespace varnhold::test {

/// Takes a file out of its folder for good, and keeps its path.
class FakeTrash : public Trash
{
public:
    void moveToTrash(const QString& path) override
    {
        if (failure != 0)
            throw RunTimeError(failure);
        moved.append(path);
        QFile::remove(path);
    }

    QStringList moved;
    int failure = 0; ///< number that is thrown instead
};

} // namespace varnhold::test
