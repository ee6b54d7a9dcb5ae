// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string_view>

// Stands in for libFuzzer where the compiler has none: runs a target over each file of a folder
// and over mutations of it, the same in every run.

namespace {

constexpr int kMutationsOfAFile = 300;

class Mutator
{
public:
    /// `text` with one to four random changes.
    std::string mutated(std::string text)
    {
        for (std::size_t changes = below(4) + 1; changes > 0; --changes)
            change(text);
        return text;
    }

private:
    std::size_t below(std::size_t bound) { return m_random() % bound; }

    void change(std::string &text)
    {
        constexpr std::array<std::string_view, 12> pieces{
            "(", ")]", "%", "^", "!", "-", "/0", ";", "99999999999999999999", ".", "\n[", "=\""};
        const std::size_t place = below(text.size() + 1);
        const std::size_t length = below(std::min<std::size_t>(text.size() - place, 16) + 1);
        const std::size_t kind = below(4);
        if (kind == 0)
            text.erase(place, length);
        else if (kind == 1)
            text.insert(below(text.size() + 1), text.substr(place, length));
        else if (kind == 2)
            text.insert(place, pieces[below(pieces.size())]);
        else if (place < text.size())
            text[place] = static_cast<char>(below(256));
    }

    std::mt19937 m_random{20240229};
};

void run(const std::string &input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.data()), input.size());
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s corpus-folder\n", argv[0]);
        return 2;
    }
    const std::filesystem::directory_iterator folder(argv[1]);
    const std::set<std::filesystem::path> files(begin(folder),
                                                end(folder)); // in one order everywhere
    check(!files.empty(), "the corpus has files");
    Mutator mutator;
    for (const auto &file : files) {
        std::ifstream stream(file, std::ios::binary);
        const std::string input((std::istreambuf_iterator<char>(stream)), {});
        run(input);
        for (int i = 0; i < kMutationsOfAFile; ++i)
            run(mutator.mutated(input));
    }
    std::printf("%zu files, %d mutations of each\n", files.size(), kMutationsOfAFile);
    return 0;
}
