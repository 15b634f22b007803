#pragma once

#include "desk/drawing/inside.h"

/// The room's words: what it takes from the drawing, its inside included.
namespace importing {

using drawing::Block;
using drawing::BlockId;
using drawing::BlockTable;
using drawing::Drawing;
using drawing::EntityId;
using drawing::Handle;
using drawing::Inside;
using drawing::kInvalidInput;
using drawing::kNoBlock;
using drawing::kNoEntity;
using drawing::kNoName;
using drawing::kTypeNames;
using drawing::Layer;
using drawing::LayerTable;
using drawing::NameId;
using drawing::NameKey;
using drawing::Place;
using drawing::Point3;
using drawing::raise;
using drawing::Record;
using drawing::Store;
using drawing::TypeId;
using drawing::UndoStep;
using enum drawing::TypeId;
using enum drawing::RecordFlag;

}  // namespace importing
