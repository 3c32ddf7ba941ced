// navigation/ReglageBooleen.cpp
#include "navigation/ReglageBooleen.h"

ReglageBooleen::~ReglageBooleen() = default;
