#include "desk/geometry/even_odd.h"

#include <algorithm>

namespace geometry {

namespace {

/// A straight piece of a border that isn't level, from its lower end to its upper one.
struct Edge {
    Point3 low;
    Point3 high;
    double at(double y) const { return low.x + (high.x - low.x) * (y - low.y) / (high.y - low.y); }
};

std::vector<Edge> edgesOf(const std::vector<Path>& loops) {
    // Chords of 16384 to a turn: their area is short of the circle's by 2.5e-8 of it.
    constexpr int kFine = 256;
    std::vector<Edge> edges;
    for (const Path& loop : loops) {
        std::vector<Point3> points;
        for (const Curve& curve : loop) flatten(curve, points, kFine);
        for (std::size_t i = 0; i < points.size(); ++i) {
            const Point3& from = points[i];
            const Point3& to = points[(i + 1) % points.size()];
            if (from.y < to.y) edges.push_back({from, to});
            if (from.y > to.y) edges.push_back({to, from});
        }
    }
    std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) { return a.low.y < b.low.y; });
    return edges;
}

/// The heights between two levels at which edges cross, the levels themselves included.
std::vector<double> crossings(const std::vector<const Edge*>& edges, double bottom, double top) {
    std::vector<double> heights{bottom, top};
    for (std::size_t i = 0; i < edges.size(); ++i) {
        for (std::size_t j = i + 1; j < edges.size(); ++j) {
            const double below = edges[i]->at(bottom) - edges[j]->at(bottom);
            const double above = edges[i]->at(top) - edges[j]->at(top);
            if (below * above < 0) heights.push_back(bottom + (top - bottom) * below / (below - above));
        }
    }
    std::sort(heights.begin(), heights.end());
    return heights;
}

/// How much of a level line lies inside.
double widthAt(const std::vector<const Edge*>& edges, double y) {
    std::vector<double> xs;
    xs.reserve(edges.size());
    for (const Edge* edge : edges) xs.push_back(edge->at(y));
    std::sort(xs.begin(), xs.end());
    double width = 0;
    for (std::size_t i = 0; i + 1 < xs.size(); i += 2) width += xs[i + 1] - xs[i];
    return width;
}

}  // namespace

double evenOddArea(const std::vector<Path>& loops, Effort& effort) {
    const std::vector<Edge> edges = edgesOf(loops);
    std::vector<double> levels;
    for (const Edge& edge : edges) levels.insert(levels.end(), {edge.low.y, edge.high.y});
    std::sort(levels.begin(), levels.end());
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());

    // Between two levels no edge begins or ends, between two crossings none changes places with another: what
    // lies inside is made of trapezes, whose area is their width at half height times that height.
    double area = 0;
    std::vector<const Edge*> active;
    auto next = edges.begin();
    for (std::size_t level = 0; level + 1 < levels.size(); ++level) {
        const double bottom = levels[level];
        std::erase_if(active, [&](const Edge* edge) { return edge->high.y <= bottom; });
        for (; next != edges.end() && next->low.y <= bottom; ++next) active.push_back(&*next);
        effort.spend(active.size() * active.size());
        const std::vector<double> heights = crossings(active, bottom, levels[level + 1]);
        effort.spend(active.size() * heights.size() * 8);
        for (std::size_t i = 0; i + 1 < heights.size(); ++i) {
            const double height = heights[i + 1] - heights[i];
            if (height > 0) area += height * widthAt(active, (heights[i] + heights[i + 1]) / 2);
        }
    }
    return area;
}

}  // namespace geometry
