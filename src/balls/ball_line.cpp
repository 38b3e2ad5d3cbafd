#include "balls/ball_line.h"

#include "balls/ball_disc.h"
#include "controls/label.h"
#include "look/theme.h"

#include <QHBoxLayout>

BallLine::BallLine(const Names& names, const QStringList& captionTexts, QWidget* parent)
    : QWidget(parent), gap(new BallDivider(this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    // The balls bring room for their shadows and their rings.
    row->setSpacing(0);
    for (int slot = 0; slot < captionTexts.size(); ++slot) {
        auto* disc = new BallDisc(this);
        disc->setObjectName(ElementName(names.disc, names.indices.at(static_cast<size_t>(slot))));
        discs.push_back(disc);
        captions.push_back(MakeLabel(captionTexts[slot], TextRole::Caption, {}, this));
        captions.back()->setHidden(names.caption.isEmpty());
        if (!names.caption.isEmpty())
            captions.back()->setObjectName(ElementName(names.caption, names.firstCaption + slot));
        captions.back()->setAlignment(Qt::AlignCenter);
        // With a large font the captions are wider than the balls, and must not run together.
        captions.back()->setContentsMargins(Spacing::Inside / 2, 0, Spacing::Inside / 2, 0);
        if (slot + 1 == captionTexts.size())
            row->addWidget(gap);
        auto* column = new QVBoxLayout;
        column->setSpacing(Spacing::Inside);
        column->addWidget(disc, 0, Qt::AlignHCenter | Qt::AlignTop);
        column->addWidget(captions.back(), 0, Qt::AlignHCenter);
        row->addLayout(column);
    }
    row->addStretch(1);
}
