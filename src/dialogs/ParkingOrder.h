// ParkingOrder.h - the orders of the parking list. Only rows move; the objects keep their order.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "dialogs/ListRows.h"

namespace dialogs {

enum class ParkingKey { Name, Type, Radius, Codes };  // the columns, from the left

// Rows that compare equal keep their order.
void SortParking(ParkingKey key, std::vector<ListRow>* rows);

// "Randomize": any order within the spots of one type rank, gates first. `random` gives any numbers.
void RandomizeParking(const std::function<uint32_t()>& random, std::vector<ListRow>* rows);

// The order of the rows before; rows that were not there come last, in their own order.
void OrderLike(const std::vector<ListRow>& before, std::vector<ListRow>* rows);

// "Original Order": that of the object list.
void OriginalParkingOrder(std::vector<ListRow>* rows);

}  // namespace dialogs
