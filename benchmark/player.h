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
    QString control;
    QString text = {};
    Qt::Key key = {};
};

/// How long a player waits for something to be seen, and how long the processor works for it, in milliseconds. The
/// difference is the disk's, and what other programs take.
struct Wait
{
    double whole = 0;
    double processor = 0;
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

    /// Takes a step and returns the longest wait in it. Throws std::runtime_error where there is no
    /// such control, or it cannot be used.
    Wait Take(const Step& step);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Type(QWidget& control, Qt::Key key, const QString& text);
    void Answer(QDialog& dialog);
    void Begin();
    void End();

    QWidget& window;
    QPointer<QDialog> seen;
    Wait begun;
    Wait longest;
};
