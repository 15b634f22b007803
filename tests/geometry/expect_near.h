#pragma once

#include "desk/geometry/vector.h"

#include <gtest/gtest.h>

namespace geometry {

inline void expectNear(const Point3& found, const Point3& wanted, double slack = 1e-9) {
    EXPECT_NEAR(distance(found, wanted), 0, slack)
        << found.x << ' ' << found.y << ' ' << found.z << " is not " << wanted.x << ' ' << wanted.y << ' '
        << wanted.z;
}

}  // namespace geometry
