#pragma once

#include "endings/commentary_screen.h"

#include <array>

/// The tags that every match ending offers, and when they are refused.
namespace tarvold::endingtags {

extern const Refusal kSecondAttacker;
extern const Refusal kAttackersManager;
extern const Refusal kReceiversManager;
extern const Refusal kAttackersStable;
extern const Refusal kReceiversStable;

/// The tag list of a normal match ending.
extern const std::array<CommentaryTag, 18> kNormal;

} // namespace tarvold::endingtags
