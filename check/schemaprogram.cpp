// Writes the schema of a print job to standard output, when the house is built.

#include "schema.h"

#include <iostream>

int main()
{
    const QByteArray schema = check::printJobSchema();
    std::cout.write(schema.constData(), schema.size());
    return std::cout.flush() ? 0 : 1;
}
