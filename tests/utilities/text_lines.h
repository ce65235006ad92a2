#pragma once

// A program's or a report's output, one string a line, without the line
// breaks; a last line without a break counts.

#include <sstream>
#include <string>
#include <vector>

inline std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}
