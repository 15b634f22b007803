#include "tests/fakes/big_drawing.h"

#include <cstdlib>
#include <fstream>
#include <iostream>

/// make-big-drawing REFERENCES FILE
int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "make-big-drawing REFERENCES FILE\n";
        return 2;
    }
    std::ofstream(argv[2], std::ios::binary) << fakes::BigDrawing::make(std::atoi(argv[1]));
    return 0;
}
