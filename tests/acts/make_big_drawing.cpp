#include "bench/big_drawing.h"

#include <cstdlib>
#include <fstream>
#include <iostream>

/// make-big-drawing REFERENCES FILE [turned]
int main(int argc, char** argv) {
    if (argc != 3 && argc != 4) {
        std::cerr << "make-big-drawing REFERENCES FILE [turned]\n";
        return 2;
    }
    std::ofstream(argv[2], std::ios::binary) << bench::BigDrawing::make(std::atoi(argv[1]), argc == 4);
    return 0;
}
