// Precompiled: the platform headers and the standard headers that nearly every source uses.
#pragma once

#include <platform/Windows.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
