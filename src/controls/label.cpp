#include "controls/label.h"

#include "look/theme.h"

using namespace Qt::StringLiterals;

QLabel* MakeLabel(const QString& text, TextRole role, const QString& name, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setObjectName(name);
    label->setFont(FontFor(role));
    if (role == TextRole::Caption)
        label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

QLabel* MakeStoredTextLabel(const QString& text, TextRole role, const QString& name)
{
    QLabel* label = MakeLabel(text, role, name);
    label->setWordWrap(true);
    label->setMinimumWidth(1);
    return label;
}

QString ElementName(const QString& array, int index)
{
    return array + u'_' + QString::number(index);
}
