#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <vector>

class QDialog;
class QWidget;

/// Something that a player does: presses a button, or types a text and then a key into another control.
struct Step
{
    QString what;
    QString control;
    QString text = {};
    Qt::Key key = {};
};

/// Opens every page and every window of the program, once each.
std::vector<Step> Openings();

/// What else a player does on the pages, where there are users and entries.
std::vector<Step> Handlers();

/// Takes the steps in the main window and answers the modal windows that they open. A player waits until something is
/// seen: until a modal window has painted itself, and from its answer until all is painted again.
class Player : public QObject
{
    Q_OBJECT

public:
    explicit Player(QWidget& mainWindow);
    ~Player() override;

    /// Takes a step and returns the longest wait in it, in milliseconds. Throws std::runtime_error where there is no
    /// such control, or it cannot be used.
    double Take(const Step& step);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Type(QWidget& control, Qt::Key key, const QString& text);
    void Answer(QDialog& dialog);
    void Begin();
    void End();

    QWidget& window;
    QPointer<QDialog> seen;
    qint64 begun = 0;
    double longest = 0;
};
