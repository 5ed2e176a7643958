#pragma once

namespace tarvold {

/// The least height of anything that a user aims at, in device-independent pixels.
inline constexpr int kTargetHeight = 28;

} // namespace tarvold
