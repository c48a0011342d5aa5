#include "factory.h"

namespace pelmar::tool {

Factory Factory::For(const std::optional<std::string>& name, const FilePath* of)
{
    const auto read = [](const FilePath& path) {
        Factory factory{.file = SettingsFile::Read(path)};
        factory.text = factory.file->MustBeSound().text;
        return factory;
    };
    if (name)
        return read(FilePath::Of(*name));
    if (!of)
        return {};
    const FilePath beside = of->Beside("DEFAULT.INI");
    return beside.IsSame(*of) || !beside.Exists() ? Factory() : read(beside);
}

std::string Factory::Name() const
{
    return file ? file->path.shown : "встроенные значения";
}

} // namespace pelmar::tool
