#pragma once

#include <QString>

/// The shortest decimal text that reads back as the same single-precision number: 87.5, 80,
/// 60.000004. Widening to double first would print the widening's digits (60.000003814697266).
[[nodiscard]] QString shortestFloatText(float value);
