#include "gbk_text.h"

#include <cerrno>
#include <iconv.h>
#include <stdexcept>
#include <vector>

namespace {

class Converter
{
public:
    Converter() : handle_(iconv_open("GBK", "UTF-8"))
    {
        if (handle_ == reinterpret_cast<iconv_t>(-1)) {
            throw std::runtime_error("iconv has no UTF-8 to GBK converter");
        }
    }
    ~Converter() { iconv_close(handle_); }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    std::string Convert(const std::string& utf8)
    {
        std::vector<char> input(utf8.begin(), utf8.end());
        std::vector<char> output(utf8.size() * 2 + 8);
        char* in = input.data();
        size_t inLeft = input.size();
        char* out = output.data();
        size_t outLeft = output.size();
        if (iconv(handle_, &in, &inLeft, &out, &outLeft) == static_cast<size_t>(-1)) {
            throw std::runtime_error("cannot convert to GBK: " + utf8);
        }
        return std::string(output.data(), output.size() - outLeft);
    }

private:
    iconv_t handle_;
};

} // namespace

std::string Utf8ToGbk(const std::string& utf8)
{
    Converter converter;
    return converter.Convert(utf8);
}
