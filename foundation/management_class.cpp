// The management query on Linux. The kernel exports the SMBIOS product
// record as files under /sys/class/dmi/id; that record is the one row of
// "Win32_ComputerSystemProduct".
#include "foundation/device_identity.h"

#include <algorithm>
#include <cwctype>
#include <fstream>
#include <iterator>

#include "foundation/utilities.h"

namespace {

const wchar_t kSelectPrefix[] = L"select * from ";

// Property name of the product row, and the DMI attribute that holds it.
const std::pair<const wchar_t*, const char*> kProductProperties[] = {
    {L"Name", "product_name"},
    {L"Vendor", "sys_vendor"},
    {L"Version", "product_version"},
    {L"UUID", "product_uuid"},
    {L"IdentifyingNumber", "product_serial"},
};

std::wstring LowerWide(std::wstring text)
{
    for (auto& c : text) {
        c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    }
    return text;
}

// The attribute's text without its trailing line end; nullopt if unreadable.
std::optional<std::wstring> ReadAttribute(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return std::nullopt;
    }
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) {
        return std::nullopt;
    }
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r' || text.back() == ' ')) {
        text.pop_back();
    }
    std::wstring wide;
    if (!text.empty() && !NarrowToWide(text, wide, kCodePageUtf8)) {
        return std::nullopt;
    }
    return wide;
}

} // namespace

ManagementClass::ManagementClass(std::string dmiFolderPath) : dmiFolder(std::move(dmiFolderPath)) {}

ManagementClass::~ManagementClass() = default;

bool ManagementClass::Open()
{
    opened = false;
    rowTaken = false;
    row.clear();
    const std::wstring lowerQuery = LowerWide(query);
    const std::wstring prefix = kSelectPrefix;
    if (lowerQuery.compare(0, prefix.size(), prefix) != 0 ||
        lowerQuery.substr(prefix.size()) != L"win32_computersystemproduct") {
        return false;
    }
    for (const auto& [property, attribute] : kProductProperties) {
        if (std::optional<std::wstring> value = ReadAttribute(dmiFolder + "/" + attribute)) {
            row[property] = *value;
        }
    }
    // No readable attribute at all means the machine exports no DMI data:
    // the query could not run, as when the connection fails.
    opened = !row.empty();
    return opened;
}

bool ManagementClass::Next()
{
    if (!opened || rowTaken) {
        return false;
    }
    rowTaken = true;
    return true;
}

std::wstring ManagementClass::Property(const std::wstring& name) const
{
    if (!rowTaken) {
        return {};
    }
    const auto found = row.find(name);
    return found == row.end() ? std::wstring() : found->second;
}
