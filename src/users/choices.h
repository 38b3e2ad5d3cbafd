#pragma once

#include "store/user_records.h"

#include <QGridLayout>

class PageSwitch;
class QComboBox;
class QRadioButton;

/// An empty list with a caption for screen readers. It is not as wide as its longest item, which may be of any length.
QComboBox* MakeList(const QString& name, const QString& accessibleName);

QRadioButton* MakeOption(const QString& caption, const QString& name);

/// Fills the list with the names of all users, the first one chosen, and returns them. Where there are none, goes to
/// the page on which users are added, and says why. Throws Failure.
std::vector<UserRow> FillUserList(QComboBox* list, PageSwitch& pages, const QString& whyNot);

/// Controls side by side, each under its caption, on the card of a page.
class CaptionedRow : public QGridLayout
{
    Q_OBJECT

public:
    CaptionedRow();

    /// Adds controls at the right under one caption of that object name, and gives the first of them `share` of the
    /// width that is left over.
    void Add(const QString& caption, const QString& captionName, const QList<QWidget*>& controls, int share = 1);
};
