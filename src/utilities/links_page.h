#pragma once

#include "controls/page_frame.h"

#include <array>

class LinkLabel;
class QLabel;

/// Page 25, "Internet Links": the records of the links table one at a time.
class LinksPage : public PageFrame
{
    Q_OBJECT

public:
    LinksPage();

    /// The opening routine: shows the page in front of the others, with the first record.
    void Prepare() override;

private:
    QWidget* BuildCard();
    void ShowLink();
    void ShowAddress(int field, const QString& caption);
    void F25link_Click(int field);
    void F25next_Click();
    void F25prev_Click();

    QLabel* siteName;
    std::array<LinkLabel*, 2> addresses{};
    std::array<QLabel*, 2> descriptions{};
};
