// How the controls of the navigation dialog grow.
#pragma once

#include <span>

#include "dialog/Layout.h"

namespace knav {

/// The rows of the dialog's own controls; its body is the place of the folder view.
std::span<const GrowRow> navLayoutRows();

}  // namespace knav
