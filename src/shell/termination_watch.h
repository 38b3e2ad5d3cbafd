#pragma once

#include <QObject>

/// Tells when the session or the terminal asks the program to end (SIGTERM, SIGINT, SIGHUP), so that it can end in
/// order.
class TerminationWatch : public QObject
{
    Q_OBJECT

public:
    explicit TerminationWatch(QObject* parent = nullptr);

Q_SIGNALS:
    void TerminationAsked();
};
