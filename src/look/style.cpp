#include "look/style.h"

#include "look/artwork.h"
#include "look/button.h"
#include "look/control_painting.h"
#include "look/control_state.h"
#include "look/input_watch.h"
#include "look/shortcut_letters.h"
#include "look/theme.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

constexpr int ControlHeight = 36;
constexpr int ListLineHeight = 28;
constexpr int IndicatorSize = 18;
constexpr int ArrowWidth = 28;
/// The ring of the focus and the gap between it and what may have its colour.
constexpr int RingAndGap = 4;

/// A view without a frame gets one that is empty until the view has the focus.
void MakeRoomForRing(QAbstractScrollArea& area)
{
    if (area.frameShape() != QFrame::NoFrame || area.focusPolicy() == Qt::NoFocus ||
        area.window()->windowType() == Qt::Popup)
        return;
    area.setProperty(BareProperty, true);
    area.setFrameShape(QFrame::StyledPanel);
}

/// The Tab key enters a group of choices at the chosen one; the arrow keys lead to the others.
void TakeTabWhileChosen(QRadioButton& choice)
{
    const auto follow = [&choice](bool chosen) { choice.setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus); };
    QObject::connect(&choice, &QRadioButton::toggled, &choice, follow);
    follow(choice.isChecked());
}

} // namespace

Style::Style() : QProxyStyle(u"fusion"_s) {}

void Style::polish(QPalette& palette)
{
    ApplyTheme(palette);
}

void Style::polish(QApplication* application)
{
    QProxyStyle::polish(application);
    application->installEventFilter(new InputWatch(this));
}

void Style::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    // The toolkit's own dialogs bring plain ones.
    if (qobject_cast<QPushButton*>(widget) != nullptr)
        widget->setFont(FontFor(TextRole::Strong));
    if (auto* choice = qobject_cast<QRadioButton*>(widget))
        TakeTabWhileChosen(*choice);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(widget))
        MakeRoomForRing(*area);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        DrawButton(option, painter, widget);
        return;
    case PE_FrameFocusRect:
        if (qobject_cast<const QAbstractItemView*>(widget) == nullptr)
            DrawFocusRing(painter, RingPlace(*option, widget), option->palette);
        return;
    case PE_PanelLineEdit: {
        if (widget == nullptr || !IsBareField(*widget))
            DrawFieldPanel(option, painter);
        return;
    }
    case PE_IndicatorCheckBox:
        DrawIndicator(option, painter, false);
        return;
    case PE_IndicatorRadioButton:
        DrawIndicator(option, painter, true);
        return;
    case PE_PanelItemViewRow:
        // The cells of a quiet row are drawn over it.
        if (!IsSelectionQuiet(widget))
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const
{
    if (const auto* choice = qstyleoption_cast<const QStyleOptionButton*>(option);
        choice != nullptr && (element == CE_CheckBox || element == CE_RadioButton)) {
        QStyleOptionButton drawn = *choice;
        drawn.rect.adjust(RingAndGap, 0, -RingAndGap, 0);
        QProxyStyle::drawControl(element, &drawn, painter, widget);
    } else if (const auto* label = qstyleoption_cast<const QStyleOptionButton*>(option);
               label != nullptr && element == CE_PushButtonLabel) {
        QStyleOptionButton drawn = *label;
        if (const auto* button = qobject_cast<const Button*>(widget))
            drawn.text = DrawnCaption(*button);
        if (IsAccent(option, widget) && (option->state & State_Enabled))
            drawn.palette.setColor(QPalette::ButtonText, option->palette.color(QPalette::HighlightedText));
        QProxyStyle::drawControl(element, &drawn, painter, widget);
    } else if (element == CE_ShapedFrame && HasRoomForRing(widget)) {
        // In a view the selection may be hidden, whose colour is the ring's elsewhere.
        if (option->state & State_HasFocus)
            DrawFocusRing(painter, option->rect, QApplication::palette());
        else if (!IsBareView(widget))
            QProxyStyle::drawControl(element, option, painter, widget);
    } else if (element == CE_ShapedFrame && widget != nullptr && widget->windowType() == Qt::Popup) {
        DrawPopupFrame(option, painter);
    } else if (element == CE_HeaderSection) {
        DrawHeaderSection(option, painter);
    } else if (element == CE_HeaderEmptyArea) {
        // Beside the last column is the room of the scroll bar, which has no line.
        painter->fillRect(option->rect, option->palette.color(QPalette::AlternateBase));
    } else if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
               header != nullptr && element == CE_HeaderLabel) {
        QStyleOptionHeaderV2 quiet;
        quiet.QStyleOptionHeader::operator=(*header);
        quiet.palette.setColor(QPalette::ButtonText, option->palette.color(QPalette::PlaceholderText));
        QProxyStyle::drawControl(element, &quiet, painter, widget);
    } else if (const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
               list != nullptr && element == CE_ComboBoxLabel && list->currentText.size() > MostDrawnCharacters) {
        QStyleOptionComboBox beginning(*list);
        beginning.currentText.truncate(MostDrawnCharacters);
        QProxyStyle::drawControl(element, &beginning, painter, widget);
    } else if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
               item != nullptr && element == CE_ItemViewItem) {
        const QStyleOptionViewItem drawn = AsDrawn(*item, widget);
        QProxyStyle::drawControl(element, &drawn, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar != nullptr && control == CC_ScrollBar) {
        DrawScrollBar(*bar, painter);
        return;
    }
    if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
        // The heading of a calendar opens its months without an arrow across its text.
        QStyleOptionToolButton plain = *button;
        plain.features &= ~QStyleOptionToolButton::HasMenu;
        QProxyStyle::drawComplexControl(control, &plain, painter, widget);
        return;
    }
    if (control != CC_ComboBox) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    DrawFieldPanel(option, painter);
    DrawArrow(painter, proxy()->subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget),
              option->palette.color(QPalette::PlaceholderText));
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    // The ring and the gap around a mark and its caption belong to it.
    if (element == SE_CheckBoxClickRect || element == SE_RadioButtonClickRect)
        return {rect.left(), option->rect.top(), rect.width() + 2 * RingAndGap, option->rect.height()};
    if (element != SE_LineEditContents || widget == nullptr || IsBareField(*widget))
        return rect;
    // Level with the text of a drop-down list.
    return rect.adjusted(3, 0, -3, 0);
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                            const QWidget* widget) const
{
    if (control == CC_ComboBox && subControl == SC_ComboBoxArrow)
        return visualRect(
            option->direction, option->rect,
            QRect(option->rect.right() - ArrowWidth + 1, option->rect.top(), ArrowWidth, option->rect.height()));
    if (control == CC_ComboBox && subControl == SC_ComboBoxEditField)
        return visualRect(option->direction, option->rect,
                          option->rect.adjusted(Spacing::Between - 2, 2, -ArrowWidth, -2));
    if (control == CC_ScrollBar)
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return ScrollBarPart(*bar, subControl);
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return IndicatorSize;
    case PM_ScrollBarExtent:
        return Spacing::Between;
    case PM_FocusFrameHMargin:
        // Beside the texts of a list there is room, as beside that of a field; the days of a calendar have none to
        // spare.
        if (qobject_cast<const QListView*>(widget) != nullptr)
            return Spacing::Inside;
        if (widget != nullptr && qobject_cast<const QCalendarWidget*>(widget->parentWidget()) != nullptr)
            return 0;
        return QProxyStyle::pixelMetric(metric, option, widget);
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return Spacing::Inside + 2;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_DefaultFrameWidth:
        if (HasRoomForRing(widget))
            return RingAndGap;
        // A drop-down list and a text area have one fine line; the fields' own panel brings its own room.
        return qobject_cast<const QLineEdit*>(widget) != nullptr ? Spacing::Inside : 1;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const
{
    if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
        item != nullptr && item->text.size() > MostDrawnCharacters) {
        const QStyleOptionViewItem drawn = AsDrawn(*item, widget);
        return sizeFromContents(type, &drawn, contents, widget);
    }
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_PushButton:
        return {size.width() + 2 * Spacing::Between, qMax(size.height(), ControlHeight + 2)};
    case CT_CheckBox:
    case CT_RadioButton:
        return {size.width() + 2 * RingAndGap, qMax(size.height(), IndicatorSize + 2 * RingAndGap)};
    case CT_LineEdit:
        if (widget != nullptr && IsBareField(*widget))
            return size;
        return {size.width(), qMax(size.height(), ControlHeight)};
    case CT_ComboBox:
        return {contents.width() + ArrowWidth + 2 * Spacing::Between, qMax(size.height(), ControlHeight)};
    case CT_SpinBox:
        return {size.width() + Spacing::Between, qMax(size.height(), ControlHeight)};
    case CT_ItemViewItem:
        return {size.width(), qMax(size.height(), ListLineHeight)};
    default:
        return size;
    }
}

QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    if (icon == SP_MessageBoxInformation)
        return InformationIcon();
    if (icon == SP_MessageBoxCritical)
        return CriticalIcon();
    return QProxyStyle::standardIcon(icon, option, widget);
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data) const
{
    switch (hint) {
    case SH_UnderlineShortcut:
        return AltIsHeld() && (widget == nullptr || widget->isActiveWindow());
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_ComboBox_Popup:
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}
