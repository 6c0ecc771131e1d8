#pragma once

#include <string>

/// What is wrong with a text of the command line, nothing where it may be given.
std::string emptyComplaint(const std::string &text);
/// Likewise with what is to be sent as one command line.
std::string commandComplaint(const std::string &text);
/// Likewise with what is to stand on the phone's display; nothing given is the usual text.
std::string displayTextComplaint(const std::string &text);
