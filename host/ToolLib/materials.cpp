#include "materials.h"

namespace toollib {
namespace {

constexpr Material kMaterials[] = {
    {1, 1, "STEEL C45", L"Сталь 45"},
    {2, 1, "STEEL 41CR4", L"Сталь 40Х"},
    {3, 1, "STEEL X6CRNITI18-10", L"Сталь 12Х18Н10Т"},
    {4, 2, "CAST IRON GJL-200", L"Чугун СЧ20"},
    {5, 3, "ALUMINIUM ALCU4MG1", L"Алюминий Д16Т"},
    {6, 3, "BRASS CUZN40", L"Латунь Л63"},
    {7, 3, "TITANIUM TI-6AL-4V", L"Титан ВТ6"},
    {8, 4, "PLASTIC PA6", L"Полиамид ПА6"},
};

} // namespace

std::span<const Material> Materials()
{
    return kMaterials;
}

const Material* FindMaterial(int id)
{
    for (const Material& material : kMaterials)
        if (material.id == id)
            return &material;
    return nullptr;
}

} // namespace toollib
