// Saving in one step, and how the last save went.
//
// Whatever is saved into one settings file within a step gets there whole or not at all, whatever happens meanwhile: a
// host that is killed, a full disk, another host that saves the same file. Each save of a record and each dialog that
// stores its values is a step of its own; a host makes one step of several by gathering them:
//
//     pelmar::SaveStep step;
//     GetLast2xOptions()->vOptions_Save();
//     GetLast3xOptions()->vOptions_Save();
//     while (!step.Commit())
//         if (!AskToTryAgain(pelmar::LastSave()))
//             break; // nothing is saved, the values stay in memory
#pragma once

#include "PelmarDlgs/export.h"

namespace pelmar {

/// What a save failed at. The file is then what it was before.
enum class SaveFailure : int {
    None,          ///< it has not failed
    NotAFile,      ///< a path that no file can have, or a folder in the file's place
    FolderMissing, ///< the file's folder is missing or out of reach
    ReadOnly,      ///< the file is marked read-only
    Waiting,       ///< another save of the file did not end in time
    Reading,       ///< the file as it is could not be read, or another program lets nobody read it
    KeepingAside,  ///< the damaged file could not be kept aside
    Copying,       ///< no copy could be made beside the file, nor may the file itself be written
    Writing,       ///< the new text could not be written; most often the disk is full
    Replacing,     ///< the copy could not take the file's place: another program holds the file
};

/// How a save went. Paths are narrow and end with a terminator.
struct SaveOutcome {
    static constexpr int kPathCapacity = 260;

    SaveFailure failure = SaveFailure::None;
    unsigned long systemError = 0;      ///< the system's reason, as GetLastError tells it; 0 where nothing failed
    char file[kPathCapacity] = "";      ///< the full path of the first file that failed, or else of the one saved last
    char keptAside[kPathCapacity] = ""; ///< where a damaged file was kept; empty where there was none
};

/// Gathers from here on what is saved. What is read meanwhile includes it. To be ended by CommitSave or DropSave on the
/// same thread; within a step that is open already it is a part of that one.
PELMAR_API void BeginSave();

/// Saves what has been gathered, each file in one step. Waits up to 5 seconds for others that use the files. False
/// where a file could not be saved: LastSave tells why, and what was meant for that file stays gathered, so that the
/// call may be repeated, or ended by DropSave. The end of a part always succeeds: the outermost one saves. Without a
/// step there is nothing to save: true.
PELMAR_API bool CommitSave();

/// Forgets what has been gathered since the BeginSave that it ends. Without a step it does nothing.
PELMAR_API void DropSave();

/// Saves one value of any settings file, a host's own for instance: with the step that is open, or at once. Without a
/// text the key is removed. False where it could not be saved.
PELMAR_API bool SaveText(const char* file, const char* section, const char* key, const char* text);

/// How the last save went, of a step or of a single value; all saved where there has been none.
PELMAR_API const SaveOutcome& LastSave();

/// A step that lasts as long as the object, dropped where it is not committed.
class SaveStep {
public:
    SaveStep() { BeginSave(); }
    ~SaveStep()
    {
        if (m_isOpen)
            DropSave();
    }
    SaveStep(const SaveStep&) = delete;
    SaveStep& operator=(const SaveStep&) = delete;

    /// CommitSave; nothing more after it has succeeded.
    bool Commit()
    {
        m_isOpen = m_isOpen && !CommitSave();
        return !m_isOpen;
    }

private:
    bool m_isOpen = true;
};

} // namespace pelmar
