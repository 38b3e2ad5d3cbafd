#pragma once

#include <QFile>

/// What a file holds; a file that is not there holds other bytes than any that is.
inline QByteArray BytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
}

inline void WriteBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("A file could not be written");
}
