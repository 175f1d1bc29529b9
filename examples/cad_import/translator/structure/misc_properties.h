#pragma once

#include "mp/wide.h"
#include "vrx_api/vrx_api_exchange_common.h"

/// The number in the shortest form that reads back as the same double, with a point whatever the locale.
mp::wstring numberText(double value);

void add(vrx::ExcMiscData& data, const mp::wstring& name, vrx::ExcMiscProperty::EType type, const mp::wstring& value);
void add(vrx::ExcMiscData& data, const mp::wstring& name, double value);
void add(vrx::ExcMiscData& data, const mp::wstring& name, int value);

/// Only if the text says something: heads of files are full of blank texts.
void addText(vrx::ExcMiscData& data, const mp::wstring& name, vrx::ExcMiscProperty::EType type,
             const mp::wstring& text);
