#pragma once

#include <QApplication>

#include <memory>

/// Makes the application object, in the program's style, under its name and with its icon. `count` and `arguments` are
/// those of the process and must outlive it.
std::unique_ptr<QApplication> MakeApplication(int& count, char** arguments);
