#include "recording/MsgFiles.h"

void ReadMsgFiles(ViewTables&) {}
