#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace varnhold::test {

TempRoot::TempRoot() : m_paths{m_folder.path()}
{
    EXPECT_TRUE(m_folder.isValid());
}

QString TempRoot::path(const QString& name) const
{
    return m_folder.filePath(name);
}

QString TempRoot::write(const QString& name, const QByteArray& bytes) const
{
    QFile file(path(name));
    EXPECT_TRUE(QDir().mkpath(QFileInfo(file).path()));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(file.fileName());
    EXPECT_EQ(file.write(bytes), bytes.size());
    return file.fileName();
}

QByteArray TempRoot::read(const QString& name) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
    return file.readAll();
}

void TempRoot::makeFolder(const QString& name) const
{
    EXPECT_TRUE(QDir().mkpath(path(name)));
}

void TempRoot::makePipe(const QString& name) const
{
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path(name)).path()));
    EXPECT_EQ(::mkfifo(QFile::encodeName(path(name)).constData(), 0600), 0);
}

} // namespace varnhold::test
