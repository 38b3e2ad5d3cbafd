#pragma once

#include <QFrame>

class Button;
class QHBoxLayout;
class QVBoxLayout;

/// One page of the main window: a title, a body that fills the page, and a row of buttons at the lower right. It is
/// hidden until its preparation makes it visible.
class PageFrame : public QFrame
{
    Q_OBJECT

public:
    /// `pageNumber` is the page's place in the frame array; a page without a title has an empty one.
    PageFrame(int pageNumber, const QString& title, const QString& titleName = {});

    /// Fills the page and makes it visible. Throws Failure.
    virtual void Prepare();

    /// Makes the page visible in front of the others. One that has a button that leaves it gives that the focus.
    void ShowInFront();

    /// Gives the focus to the field with which the work on the page begins, unless the page has the focus already.
    void FocusFirstField();

    /// Makes the Tab key reach the buttons at the lower right after all else on the page, as the eye does. To be called
    /// when the page is in its window: by itself its keys go round in a ring, in which nothing is last.
    void PutFooterLastInTabOrder();

Q_SIGNALS:
    /// What the page beneath shows has been changed on this page, which is laid over it.
    void Stored();

protected:
    /// The object name of a control of this page: "F", the page's index and the name.
    QString ControlName(const QString& name) const;
    QVBoxLayout* Body() const { return body; }
    /// Puts the buttons right under the body, which keeps its own height, and gives both a measure that the eye can
    /// follow on a large screen. To be called when the body is complete.
    void MakeForm();
    /// Adds a button to the row at the lower right, from left to right.
    Button* AddFooterButton(const QString& caption, const QString& name);
    Button* AddFooterDefault(const QString& caption, const QString& name);
    /// The button that leaves the page; Escape presses it too.
    void SetBackButton(Button* button) { back = button; }

    /// The field with which the work on the page begins, where that is not the first in the order of the Tab key.
    void SetFirstField(QWidget* field) { firstField = field; }

    /// The focus of a control that vanishes or can no longer be pressed stays on the page.
    bool focusNextPrevChild(bool next) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool FocusNextOnPage(QWidget* after);

    int number;
    bool isForm = false;
    Button* back = nullptr;
    QWidget* firstField = nullptr;
    QVBoxLayout* sheet;
    QVBoxLayout* body;
    QHBoxLayout* footer;
};
