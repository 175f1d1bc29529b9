#pragma once

#include "pmi/product_places.h" // for looks/visualization_builder.cpp
