#include "support/FakeDownloadFiles.h"

#include "platform/RunTimeError.h"
#include "platform/Socket.h"

namespace varnhold::test {

namespace {

class FakeFile : public DownloadFile
{
public:
    explicit FakeFile(FakeDownloadFiles& disk) : m_disk(disk) {}

    void open(const QString& path) override
    {
        m_disk.step();
        m_path = path;
        m_position = 0;
        if (!m_disk.contents.contains(path))
            m_disk.contents.insert(path, {});
    }
    [[nodiscard]] bool isOpen() const override { return !m_path.isEmpty(); }
    void close() override { m_path.clear(); }
    void write(QByteArrayView bytes) override
    {
        file().replace(m_position, bytes.size(), bytes.toByteArray());
        m_position += bytes.size();
    }
    void appendFrom(Socket& socket, const QByteArray& /*except*/,
                    std::function<void(const Appended&)> done) override
    {
        try {
            QByteArray& contents = file();
            const QByteArrayView chunk = socket.getData();
            m_position = contents.append(chunk).size();
            done({chunk.size() + m_disk.extraBytes, std::nullopt});
        } catch (const RunTimeError& error) {
            done({0, error});
        }
    }

private:
    QByteArray& file()
    {
        if (!isOpen())
            throw RunTimeError(errors::badFileName);
        m_disk.step();
        return m_disk.contents[m_path];
    }

    FakeDownloadFiles& m_disk;
    QString m_path;
    qsizetype m_position = 0;
};

} // namespace

std::unique_ptr<DownloadFile> FakeDownloadFiles::makeFile()
{
    return std::make_unique<FakeFile>(*this);
}

void FakeDownloadFiles::remove(const QString& path)
{
    step();
    if (contents.remove(path) == 0)
        throw RunTimeError(errors::fileNotFound);
}

void FakeDownloadFiles::rename(const QString& from, const QString& to)
{
    step();
    if (!contents.contains(from))
        throw RunTimeError(errors::fileNotFound);
    if (contents.contains(to))
        throw RunTimeError(errors::fileExists);
    contents.insert(to, contents.take(from));
}

void FakeDownloadFiles::createEmpty(const QString& path)
{
    step();
    contents.insert(path, {});
}

void FakeDownloadFiles::makeFolder(const QString& path)
{
    step();
    folders.append(path);
}

void FakeDownloadFiles::step()
{
    if (++calls == failingCall)
        throw RunTimeError(failure);
}

} // namespace varnhold::test
