#pragma once

#include <QStringList>

#include <optional>

/// Answers --help or --version among the arguments of the process, for which no display is needed. Returns the code
/// with which the process is to end then.
std::optional<int> AnswerQuestion(int count, char** arguments);

/// Goes into the folder that `words` name, the arguments without those of the toolkit; without one the process stays
/// where it is. Returns the code with which the process is to end when it cannot, after saying why.
std::optional<int> EnterFolder(const QStringList& words);
