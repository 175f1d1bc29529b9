#include "tests/full_rows/full_rows.h"
#include "vrx_api/json/shape.h"

#include <iostream>

// Prints the full texts of the classes for validate_rows.py: one JSON object on a line.
int main()
{
    for (const test::FullRow& row : test::allFullRows())
    {
        const auto object = row.make();
        const vrx::ClassShape* shape = vrx::ClassShape::find(vrx::typeOf(*object));
        shape = shape != nullptr ? shape : vrx::ClassShape::find(row.title);
        if (shape != nullptr)
        {
            std::cout << R"({"class":")" << shape->name() << R"(","in":)" << row.in << R"(,"out":)" << row.out << "}\n";
        }
    }
    return 0;
}
