// Section tables as JSON.
#pragma once

#include "exchange/json_writer.h"
#include "sections/vor_prof_values_table.h"

namespace cli {

/// The members "table", "type" (of a built-in one) or "template", and "columns".
void writeTableHead(exchange::JsonWriter& json, const Vor_ProfValuesTable& table);
/// The members of a size: "section", "active", "names" by language, "values" by column (texts,
/// as the table has them), "mass" in kg/m when it is known.
void writeSize(exchange::JsonWriter& json, const Vor_ProfValuesTable& table, int row);
/// The member "calculated": what follows from the shape of a size, by the names that catalogues
/// use.
void writeCalculated(exchange::JsonWriter& json, const Vor_ProfValuesTable& table, int row);
/// One object: the head, and the sizes in "sizes", a line each.
std::string tableAsJson(const Vor_ProfValuesTable& table);

}  // namespace cli
