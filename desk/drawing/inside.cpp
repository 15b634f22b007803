#include "desk/drawing/inside.h"

#include "desk/drawing/creator.h"

namespace drawing {

void Inside::forgetDefinitions(Drawing& drawing) { drawing.creator_->forget(); }

}  // namespace drawing
