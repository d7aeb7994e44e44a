#pragma once

#include <QString>

// The records of a saved trend, one write and one read per record for a view number 1..10.
// Writers take the view's tables and trend state, build the whole new-layout record and write
// it to the trend settings directory; readers take the file of the archive work directory and
// put it back into the view. A file shorter than the new layout reads as zero beyond its end.
// A missing or unreadable file leaves the view as it was and gives false.

bool WriteTrndParaSet(int viewNumber);
bool ReadTrndParaSet(int viewNumber);
bool WriteFileHeader(int viewNumber);
bool ReadFileHeader(int viewNumber);
bool WriteSaveParaData(int viewNumber);
bool ReadSaveParaData(int viewNumber);
bool WriteAlmStyle(int viewNumber);
bool ReadAlmStyle(int viewNumber);

// Whether the four records of the archive work directory all have their old lengths, checked
// in the order AlmStyle, FileHeader, SaveParaData, TrndParaSet and stopping at the first that
// does not; that one's file name goes to `firstFailing` when given.
bool CheckOldArchive(QString* firstFailing = nullptr);
