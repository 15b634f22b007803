#pragma once

#include "desk/lisp/interpreter.h"
#include "tests/model/model_world.h"

#include <set>
#include <sstream>
#include <string>
#include <vector>

/// A document whose application gives the desk's own Lisp, under the names that are available.
struct LispWorld : model::ModelWorld {
    LispWorld() : ModelWorld(drawing::PlainDrawing().make()) {
        for (int n = -1; n <= 20; ++n) {
            const std::string name = n < 0 ? "VL.Application" : "VL.Application." + std::to_string(n);
            application->registerObject(name, [this, name] {
                requested.push_back(name);
                if (!available.contains(name)) throw basic::Error(429, "no such class");
                return lisp.createObject("VL.Application");
            });
        }
    }

    std::ostringstream output;
    lisp::Interpreter lisp{output};
    std::set<std::string> available{"VL.Application"};
    std::vector<std::string> requested;
};
