#include "FloatText.h"

#include <array>
#include <charconv>

QString shortestFloatText(float value)
{
    // Longest shortest form: sign, 9 digits, point, "e-45".
    std::array<char, 24> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}
