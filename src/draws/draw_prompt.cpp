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
    Content()->addWidget(
        MakeLabel(u"A %1 draw with this date already exists,\r\nwhat do you want to do?"_s.arg(gameName),
                  TextRole::Body, u"Label1"_s));
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing::Between);
    const auto add = [&](const QString& caption, const QString& name, DrawPromptChoice chosen) {
        auto* button = new Button(caption, name);
        connect(button, &QPushButton::clicked, this, [this, chosen] {
            choice = chosen;
            accept();
        });
        row->addWidget(button);
        return button;
    };
    add(u"Add New Draw"_s, u"Command1"_s, DrawPromptChoice::AddNewDraw);
    add(u"Overwrite Existing Draw"_s, u"Command2"_s, DrawPromptChoice::OverwriteExistingDraw);
    Button* cancel = add(u"Cancel"_s, u"Command3"_s, DrawPromptChoice::Cancel);
    cancel->setDefault(true);
    cancel->setFocus();
    Content()->addLayout(row);
}
