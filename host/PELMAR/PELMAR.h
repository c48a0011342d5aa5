// The post-processor library, as far as toolpath templates go: the operations, the default template of each, and the
// dialog in which the user chooses a template file.
//
// A plain DLL interface, resolved by name or linked. All functions are for the user-interface thread. They return 1 on
// success and 0 on failure; a null pointer or an unknown operation is a failure, and a failure leaves what was handed
// over as it was. What is handed out as an array belongs to the library and is valid as long as it is loaded.
//
// Texts are in the ANSI code page: Russian, or English where the code page has no Cyrillic letters.
#pragma once

#include <cstdint>

#include "PelmarDlgs/template_defaults.h"

#ifdef PELMAR_LIBRARY_IMPLEMENTATION
#define PELMAR_ENTRY_POINT extern "C" __declspec(dllexport)
#else
#define PELMAR_ENTRY_POINT extern "C" __declspec(dllimport)
#endif

/// Room, terminator included, that SelectTemplateFile needs for a path.
constexpr int kPelmarPathCapacity = 260;

/// The ids of all operations. Those that are not offered to the user come last: the operation without a name and 36.
PELMAR_ENTRY_POINT int Pelmar_GetOperationList(std::int32_t* count, const std::int32_t** ids);

/// The seven options that templates can be sorted by, the first of which is not to sort.
PELMAR_ENTRY_POINT int GetSortingOptionStrings(std::int32_t* count, const char* const** texts);

/// Fills the record of the operation whose id it bears, with what was last set or, where nothing was, with the values
/// of a fresh record and the operation's name.
PELMAR_ENTRY_POINT int GetTemplateDefaults(pelmar::TemplateDefaults* record);

/// Stores the record of an operation in PELMAR.INI beside the library, where it stays until it is set again. The
/// operation's name is the library's own and not stored. Texts of over 1,023 characters and such with control
/// characters are refused, and then nothing is stored; a failure, too, is a file that cannot be written.
PELMAR_ENTRY_POINT int SetTemplateDefaults(const pelmar::TemplateDefaults* record);

/// Lets the user choose a template file for the operation. 1 when one was chosen; its path, of at most
/// kPelmarPathCapacity characters with the terminator, is then in `path`. The active window of the thread is disabled
/// meanwhile; the current folder stays as it is.
PELMAR_ENTRY_POINT int SelectTemplateFile(std::int32_t operationId, char* path);
