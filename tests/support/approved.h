#pragma once

#include "support/file_bytes.h"

#include <QTest>

/// Compares what was seen with the lines of tests/approved/NAME.txt. With TAVENOR_APPROVE in the environment the file
/// is written anew; it is read before it is committed.
inline void CompareApproved(const QString& name, const QStringList& seen)
{
    const QString path = QStringLiteral(TAVENOR_APPROVED "/%1.txt").arg(name);
    if (qEnvironmentVariableIsSet("TAVENOR_APPROVE"))
        WriteBytes(path, seen.join('\n').toUtf8() + '\n');
    QCOMPARE(seen, QString::fromUtf8(BytesOf(path)).split('\n', Qt::SkipEmptyParts));
}
