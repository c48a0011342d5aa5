#include "PelmarDlgs/saving.h"

#include "frame/settings_journal.h"

namespace pelmar {

void BeginSave()
{
    Journal().Begin();
}

bool CommitSave()
{
    return Journal().Commit();
}

void DropSave()
{
    Journal().Drop();
}

bool SaveText(const char* file, const char* section, const char* key, const char* text)
{
    return Journal().Write(section, key, text, file);
}

const SaveOutcome& LastSave()
{
    return Journal().Last();
}

} // namespace pelmar
