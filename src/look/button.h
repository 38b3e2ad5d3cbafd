#pragma once

#include <QPushButton>

/// The name of the property by which a button is marked as the default action of its page, or as a quiet one though it
/// is the default button of its dialog.
inline constexpr char AccentProperty[] = "accent";

/// Whether a key is one of the two Enter keys.
bool IsEnter(const QKeyEvent& event);

/// Presses a button by a key that was pressed in another control. As with the mouse, that control is left first; a
/// field whose content is refused then takes the focus back, and the button is not pressed.
void PressByKey(QAbstractButton& button);

/// A button of a page or a window.
class Button : public QPushButton
{
    Q_OBJECT

public:
    Button(const QString& caption, const QString& name, QWidget* parent = nullptr);

    /// Marks it as the page's default action.
    void MakeAccent();
    /// Makes it the dialog's default button, which Enter presses, without the weight of one.
    void MakeQuietDefault();

    QSize minimumSizeHint() const override;
};
