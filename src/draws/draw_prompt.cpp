#include "draws/draw_prompt.h"

#include "controls/label.h"
#include "controls/message_box.h"
#include "look/button.h"
#include "look/theme.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

DrawPrompt::DrawPrompt(const QString& gameName, QWidget* parent)
    : SmallWindow(u"frmmsgbox1"_s, ApplicationTitle, parent)
{
    QVBoxLayout* layout = Content();
    layout->addWidget(MakeLabel(u"A %1 draw with this date already exists,\r\nwhat do you want to do?"_s.arg(gameName),
                                TextRole::Body, u"Label1"_s));
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing::Between);
    const auto add = [&](const char* caption, const char* name, DrawPromptChoice chosen) {
        auto* button = new Button(QLatin1String(caption), QLatin1String(name));
        connect(button, &QPushButton::clicked, this, [this, chosen] { Choose(chosen); });
        row->addWidget(button);
        return button;
    };
    add("Add New Draw", "Command1", DrawPromptChoice::AddNewDraw);
    add("Overwrite Existing Draw", "Command2", DrawPromptChoice::OverwriteExistingDraw);
    Button* cancel = add("Cancel", "Command3", DrawPromptChoice::Cancel);
    cancel->setDefault(true);
    cancel->setFocus();
    layout->addLayout(row);
}

void DrawPrompt::Choose(DrawPromptChoice chosen)
{
    choice = chosen;
    accept();
}
