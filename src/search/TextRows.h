#pragma once

#include "platform/RunTimeError.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace varnhold {

/// Pairs of an id and a name, many of them: all texts stand in one, so that a row costs no memory of its own
/// but its letters.
class TextRows
{
public:
    /// RunTimeError 7 where all texts together would be too long.
    void append(QStringView id, QStringView name)
    {
        if (m_text.size() + id.size() + name.size() > mostCharacters)
            throw RunTimeError(errors::outOfMemory);
        m_text.append(id);
        m_ends.push_back(static_cast<quint32>(m_text.size()));
        m_text.append(name);
        m_ends.push_back(static_cast<quint32>(m_text.size()));
    }
    void clear()
    {
        m_text.clear();
        m_ends.clear();
    }

    [[nodiscard]] int count() const { return static_cast<int>(m_ends.size() / 2); }
    [[nodiscard]] QStringView id(int row) const { return part(2 * static_cast<std::size_t>(row)); }
    [[nodiscard]] QStringView name(int row) const { return part(2 * static_cast<std::size_t>(row) + 1); }

private:
    static constexpr qsizetype mostCharacters = 256 * 1024 * 1024;

    [[nodiscard]] QStringView part(std::size_t index) const
    {
        const qsizetype from = index == 0 ? 0 : m_ends[index - 1];
        return QStringView(m_text).mid(from, m_ends[index] - from);
    }

    QString m_text;
    std::vector<quint32> m_ends; ///< two a row
};

} // namespace varnhold
