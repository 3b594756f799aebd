#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstdint>

namespace varnhold {

/// The one door for putting a whole file in the place of another in one step. What is written goes to a file
/// beside the target under a name that is plainly ours (".varnhold-" and sixteen digits), is flushed to the
/// disk with its failure seen, and then takes the target's place: after a failure or a kill the target holds
/// the old bytes or the new, never less. A kill may leave the file beside it; clearLeftovers takes such away.
class FileReplacement
{
public:
    enum class Links {
        Follow,  ///< a target that is a link: what it points to is replaced (a user's linked settings)
        Replace, ///< the link itself is
    };

    enum class Flush {
        Yes,
        OverOld, ///< only where there was a file to lose: for what can be fetched again, and many at a time
    };

    /// Throws RunTimeError (75, 76, 61, 52) where no file can be made beside the target, and where the target
    /// is there and is no regular file or may not be written. A file without its owner's right to write may
    /// not, whoever asks. Mode and, where allowed, owner are the old file's.
    explicit FileReplacement(const QString& target, Links links = Links::Follow);
    ~FileReplacement(); ///< not committed: the file beside the target goes
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Throws RunTimeError at the first write that fails; nothing can be committed afterwards.
    void write(QByteArrayView bytes);
    [[nodiscard]] std::int64_t size() const { return m_size; }
    [[nodiscard]] const QString& temporaryPath() const { return m_temporary; }
    /// Flushes, then renames, then flushes the folder. Throws; the target is then the old file, but where the
    /// folder's flush alone failed: there the new one stands, and a loss of power may bring the old one back.
    void commit(Flush flush = Flush::Yes);

private:
    void makeTemporary(const QString& folder, unsigned mode);
    void discard();

    QString m_target; ///< links resolved, as the links' way asks
    QString m_temporary;
    std::int64_t m_size = 0;
    int m_file = -1;
    bool m_failed = false;
    bool m_replaces = false; ///< something stood at the target
};

/// All of it at once. Throws RunTimeError as FileReplacement does.
void replaceFile(const QString& target, QByteArrayView bytes,
                 FileReplacement::Links links = FileReplacement::Links::Follow);

/// Removes what kills have left in this folder, by its name and only where no living process works on it.
/// Never throws.
void clearLeftovers(const QString& folder);

} // namespace varnhold
