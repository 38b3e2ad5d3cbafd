#pragma once

#include <QStyleOptionViewItem>

class QWidget;

// What the style asks of a control before it paints or measures it; a widget may be nullptr.

/// More than fits a line of a list; shaping a text of megabytes takes seconds.
inline constexpr qsizetype MostDrawnCharacters = 1000;

/// The place of the ring of a control: that of a check box or a choice goes around its mark as well as around its
/// caption, of which the option tells the place.
QRect RingPlace(const QStyleOption& option, const QWidget* widget);

/// Whether the selection of a view is quiet: its strong colour is the sign that the view has the keys.
bool IsSelectionQuiet(const QWidget* view);

/// An item of a view with no more of its text than is drawn, and with the colours of its selection.
QStyleOptionViewItem AsDrawn(const QStyleOptionViewItem& item, const QWidget* view);

/// Whether a view has no frame but the ring of the focus.
bool IsBareView(const QWidget* widget);

/// Whether a text field has no frame of its own: one on a ball, or a part of another field.
bool IsBareField(const QWidget& field);

/// Whether the frame of a widget is wide enough for the ring of the focus and a gap.
bool HasRoomForRing(const QWidget* widget);
