#pragma once

#include <QObject>

class QDBusVariant;

/// Asks the desktop's portal whether it prefers dark windows, at once and whenever that changes, and has the theme
/// follow. Not every desktop tells it by the palette of its platform theme.
class DesktopColours : public QObject
{
    Q_OBJECT

public:
    explicit DesktopColours(QObject* parent = nullptr);

private Q_SLOTS:
    static void TakeSetting(const QString& group, const QString& key, const QDBusVariant& value);
};
