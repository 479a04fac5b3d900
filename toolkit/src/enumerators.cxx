#include <qx/enumerators.h>

#include <ostream>

std::ostream& DtWriteEnumerator(std::ostream& out, const DtEnumeratorTable& table, DtInt64 number)
{
    for (std::size_t i = 0; i < table.count; ++i)
        if (table.first[i].value == number)
            return out << table.first[i].name << " (" << number << ')';
    return out << number;
}
