// A main for compilers without libFuzzer: runs the harness once on each file named, so that a
// saved corpus replays as a regression test under the sanitizers.
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t tamano);

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        std::ifstream f(argv[i], std::ios::binary);
        const std::vector<char> datos{std::istreambuf_iterator<char>(f), {}};
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(datos.data()), datos.size());
    }
    std::printf("%d archivos\n", argc - 1);
    return 0;
}
