#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class BallDisc;
class QLabel;

/// Balls side by side in slot order, with captions under them: what a row to be read and a row to be typed in share.
class BallLine : public QWidget
{
    Q_OBJECT

public:
    /// The object names of the control arrays, and the index of each slot in those of the balls. Captions without a
    /// name are hidden.
    struct Names
    {
        QString number;
        QString disc;
        QString caption;
        std::vector<int> indices;
        /// The index of the first caption; the others follow it.
        int firstCaption = 0;
    };

    int Count() const { return static_cast<int>(discs.size()); }
    BallDisc* Disc(int slot) const { return discs.at(static_cast<size_t>(slot)); }
    QLabel* Caption(int slot) const { return captions.at(static_cast<size_t>(slot)); }
    QLabel* LastCaption() const { return captions.back(); }
    /// The divider before the last ball, where the extra ball stands apart.
    void SetLastApart(bool apart) { gap->setVisible(apart); }

protected:
    BallLine(const Names& names, const QStringList& captionTexts, QWidget* parent);

private:
    std::vector<BallDisc*> discs;
    std::vector<QLabel*> captions;
    QWidget* gap;
};
