#pragma once

#include <string>

/// Resident memory of a process, in MiB. Throws std::runtime_error when there is no such process.
double residentMiB(int process);
/// The process of that program that was started with a word that contains the text, or -1.
int processOf(const std::string& program, const std::string& text);
