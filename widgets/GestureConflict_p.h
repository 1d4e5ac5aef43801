#pragma once

namespace MtConf {

/// Returns what two gestures in conflict have in common: `gesture` with both bits of a click and
/// its double click if it has one of them, because a double click starts with a click. 0 if the
/// gesture has no action. `gesture` is a value of `MtConfManage::addConfMouseAction`.
int gestureConflictKey(int gesture);

} // namespace MtConf
