#pragma once

#include "controls/page_frame.h"

#include <array>

class LinkLabel;

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
    void F25link_Click(int index);
    void F25next_Click();
    void F25prev_Click();

    std::array<LinkLabel*, 5> F25link{};
};
