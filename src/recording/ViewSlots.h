#pragma once

// The ten view slots of the process: slot 0..9 holds view number slot + 1.
bool ViewInUse(int slot);
// Taking or freeing a slot clears its view state (files, recording and every per-view part).
void setViewInUse(int slot, bool inUse);
// The smallest view number 1..10 whose slot is free, or 0 when all ten are in use.
int FirstFreeView();
void clearViewSlots();
