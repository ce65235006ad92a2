#pragma once
// Reads and writes the account schema of cloud/fixtures/*.json (also the
// schema of a state file). A bad file is refused with the file, the place
// inside it (a JSON path such as backup.devices[1].size) and the reason.
#include <stdexcept>
#include <string>

#include "account.h"

namespace cloud {

class FixtureError : public std::runtime_error
{
public:
    FixtureError(const std::string& file, const std::string& place, const std::string& reason);
};

AccountData LoadAccountFile(const std::string& path);
// `file` names the text's source in a refusal.
AccountData AccountFromText(const std::string& text, const std::string& file);
AccountData AccountFromJson(const Json::Value& root, const std::string& file);
Json::Value AccountToJson(const AccountData& account);

} // namespace cloud
