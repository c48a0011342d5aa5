// refused: mistake::KeyStandsTwice()
#include <afxdlgs.h>

#include "records/record_table.h"

using namespace pelmar;

struct Record {
    int Units = 0;
    double Step = 0;
    double Depth = 0;
};

constexpr Option kOptions[] = {Units<Record>(), Length<&Record::Step>("Step", "Шаг"),
                               Length<&Record::Depth>("Step", "Глубина")};
constexpr RecordTable kTable{"Section", "Операция", kOptions};
