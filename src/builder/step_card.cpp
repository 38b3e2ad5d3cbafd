#include "builder/step_card.h"

#include "controls/label.h"
#include "controls/text_box.h"
#include "look/button.h"
#include "look/theme.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QComboBox* MakeList(int index, const QString& caption)
{
    auto* list = new QComboBox;
    list->setObjectName(ElementName(u"F26combo"_s, index));
    list->setAccessibleName(caption);
    // A long name is cut off in the list; it does not widen the page.
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(18);
    return list;
}

/// Of the two at most one is seen at a time.
QGridLayout* InOnePlace(QWidget* first, QWidget* second, Qt::Alignment alignmentOfFirst)
{
    auto* place = new QGridLayout;
    place->addWidget(first, 0, 0, alignmentOfFirst);
    place->addWidget(second, 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
    return place;
}

} // namespace

StepCard::StepCard()
    : F26combo{MakeList(0, u"Select User"_s), MakeList(1, u"Select Build Type"_s), MakeList(2, u"Select Options"_s)},
      F26text(new TextBox),
      F26info(new Button(u"i"_s, u"F26info"_s)),
      F26choose(new Button(u"Choose Numbers"_s, u"F26choose"_s)),
      F26go(new Button(u"GO !"_s, u"F26go"_s)),
      entriesLabel(MakeLabel(u"1- 200 entries"_s, TextRole::Caption, u"Label_8"_s)),
      promptLabel(MakeLabel(u"How many entries? (1 - 200)"_s, TextRole::Caption, u"Label_9"_s)),
      noNumbersLabel(MakeLabel(u"No numbers needed"_s, TextRole::Body, u"Label_12"_s))
{
    for (QWidget* control :
         std::initializer_list<QWidget*>{F26combo[0], F26combo[1], F26combo[2], F26text, F26info, F26choose, F26go,
                                         entriesLabel, promptLabel, noNumbersLabel})
        KeepingRoom(control);
    F26text->setObjectName(u"F26text"_s);
    F26text->setText(u"200"_s);
    F26text->setFixedWidth(F26text->fontMetrics().averageCharWidth() * 16);
    F26info->setAccessibleName(u"About this build type"_s);
    F26info->setFixedWidth(F26info->sizeHint().height());
    F26go->MakeAccent();
    Content()->setSpacing(Spacing::Inside + Spacing::Between);
    AddStep(u"Step 1:"_s, u"Select User"_s)->addWidget(F26combo[0]);
    auto* typeRow = new QHBoxLayout;
    typeRow->setSpacing(Spacing::Inside);
    typeRow->addWidget(F26combo[1], 1);
    typeRow->addWidget(F26info);
    QVBoxLayout* typeStep = AddStep(u"Step 2:"_s, u"Select Build Type"_s);
    typeStep->addLayout(typeRow);
    typeStep->addWidget(entriesLabel);
    QVBoxLayout* optionStep = AddStep(u"Step 3:"_s, u"Select Options"_s);
    optionStep->addWidget(promptLabel);
    optionStep->addLayout(InOnePlace(F26combo[2], F26text, {}));
    AddStep(u"Step 4:"_s, u"Select Numbers"_s)->addLayout(InOnePlace(F26choose, noNumbersLabel, Qt::AlignLeft));
    AddStep(u"Step 5:"_s, u"Start Build Process"_s)->addWidget(F26go, 0, Qt::AlignLeft);
}

QVBoxLayout* StepCard::AddStep(const QString& number, const QString& title)
{
    auto* heading = new QHBoxLayout;
    heading->setSpacing(Spacing::Inside);
    heading->addWidget(MakeLabel(number, TextRole::Caption), 0, Qt::AlignBaseline);
    heading->addWidget(MakeLabel(title, TextRole::Strong), 1, Qt::AlignBaseline);
    auto* step = new QVBoxLayout;
    step->setSpacing(Spacing::Inside);
    step->addLayout(heading);
    Content()->addLayout(step);
    return step;
}

void StepCard::Describe(const BuildType& type)
{
    entriesLabel->setText(type.entries);
    promptLabel->setText(type.optionPrompt);
    F26text->clear();
    F26combo[2]->clear();
    for (const BuildOption& option : type.options)
        F26combo[2]->addItem(option.text);
    F26combo[2]->setCurrentIndex(-1);
    F26text->setAccessibleName(type.optionPrompt);
    F26combo[2]->setAccessibleName(type.optionPrompt);
}

void StepCard::Show(const ShownControls& shown)
{
    F26combo[1]->setVisible(shown.buildType);
    F26info->setVisible(shown.typeTexts);
    entriesLabel->setVisible(shown.typeTexts);
    promptLabel->setVisible(shown.typeTexts);
    F26combo[2]->setVisible(shown.option);
    F26text->setVisible(shown.count);
    F26choose->setVisible(shown.choose);
    noNumbersLabel->setVisible(shown.noNumbersNeeded);
    F26go->setVisible(shown.go);
}
