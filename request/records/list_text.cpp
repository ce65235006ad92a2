#include "request/records/list_text.h"

void AppendListText(std::string& text, const std::vector<std::string>& items)
{
    if (text.empty()) {
        text += '[';
    }
    for (const std::string& item : items) {
        if (text != "[") {
            text += ',';
        }
        text += '"';
        text += item;
        text += '"';
    }
    text += ']';
}
