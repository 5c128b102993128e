// AutoBackup.h - the automatic backup of the open airport in the program folder, and what a crash leaves there.
//
// Each running instance has a backup of its own, so that none writes over another's or takes it for one that a crash
// has left: the first instance AutoBackupTemp.bgl, further ones AutoBackupTemp2.bgl and so on. A lock file beside it,
// held open, tells that the instance lives.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "bgl/AirportReader.h"

namespace app {

constexpr int kMostBackups = 9;  // instances that have a backup

// Of the instance counted from 1.
std::string AutoBackupPath(const std::string& programFolder, int instance = 1);

// Whether the file, in whatever folder, bears the name of a backup.
bool IsAutoBackupName(std::string_view path);

// The airport in the backup and when it was written, a FILETIME. False when there is no backup, one that cannot be
// read, or a file of several airports: it is ignored.
bool FindAutoBackup(const std::string& path, bgl::AirportPlace* place, uint64_t* writeTime);

// At the start: chooses this instance's backup, one that a crash has left if there is any. A file that is there but
// cannot be read just now is passed over. False, with a word in the status bar, when there is none to have: then no
// backups are made.
bool ClaimAutoBackup();

// Opens the airport of the claimed backup, modified, and tells so in the status bar. False, without a word, when there
// is none or it cannot be opened: then that backup stays and this instance writes to another one.
bool RecoverAirport();

// Whether the model holds what the user has done, and nothing that a drag or an open dialog may take back.
bool IsAirportAtRest();

// Every two minutes: writes a modified airport, at once or as soon as it is at rest.
// A failure shows in the status bar and nowhere else.
void WriteAutoBackup();

// Often: writes a backup that had to wait.
void WriteDueAutoBackup();

// The airport is safe in a file.
void OnAirportSaved();

// The open airport was dropped, after it was saved or given up. Other backups than that of a recovered airport stay
// until the program ends.
void OnAirportDropped();

// Another airport was opened in its place, from state.sourceFile. One from the backup itself is a recovered one.
void OnAirportOpened();

// At the end.
void RemoveAutoBackup();

}  // namespace app
