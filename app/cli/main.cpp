#include "app/cli/cli.h"

#include <iostream>

int main(int argc, char** argv) {
    return velmora::cli::run(argc, argv, std::cout, std::cerr);
}
