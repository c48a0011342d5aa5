// Saving what the user has entered, and telling him how it went.
#pragma once

#include <functional>

#include <afxwin.h>

/// How a save went.
struct SaveResult {
    bool saved = true;
    CString file;      ///< that could not be saved
    CString reason;    ///< why, in words
    CString keptAside; ///< where a damaged file was kept before it was saved; empty where there was none
};

/// The system's words for one of its error codes, with the code.
CString SystemReason(DWORD error);

/// Tells the user that something could not be saved, with the file and the reason. True where he wants it tried again.
/// `what`: string id of what it is.
bool AskToTryAgain(UINT what, const SaveResult& failed);
/// Tells the user where a damaged file was kept.
void TellKeptAside(const SaveResult& result);

/// Saves and reports. Where the result is no success the user decides whether `save` is called again. False where he
/// has given up.
bool SaveAndReport(UINT what, const std::function<SaveResult()>& save);
