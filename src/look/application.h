#pragma once

#include <QApplication>

#include <memory>

/// Makes the application object, in the program's style and under its name. `count` and `arguments` are those of the
/// process and must outlive it. Folders that the toolkit would leave behind are made in `scratch` and removed again.
std::unique_ptr<QApplication> MakeApplication(int& count, char** arguments, const QString& scratch);
