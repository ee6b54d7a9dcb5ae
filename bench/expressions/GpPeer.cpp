// SPDX-License-Identifier: GPL-3.0-or-later
#include "GpPeer.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <unistd.h>

namespace {

/// A file of lines in the folder of temporary files, for as long as the object lives.
class LinesFile
{
public:
    explicit LinesFile(const std::vector<std::string> &lines)
    {
        const int descriptor = mkstemp(m_path.data());
        if (descriptor < 0)
            throw std::runtime_error("no temporary file");
        close(descriptor);
        std::ofstream file(m_path);
        for (const std::string &line : lines)
            file << line << '\n';
    }
    ~LinesFile() { std::remove(m_path.c_str()); }
    LinesFile(const LinesFile &) = delete;
    LinesFile &operator=(const LinesFile &) = delete;

    const std::string &path() const { return m_path; }

private:
    std::string m_path = "/tmp/bench_expressions_XXXXXX";
};

std::string outputOf(const std::string &command)
{
    std::FILE *const pipe = popen(command.c_str(), "r");
    if (!pipe)
        throw std::runtime_error("cannot run " + command);
    std::string output;
    std::string block(65536, '\0');
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), pipe))
        output.append(block, 0, count);
    pclose(pipe);
    return output;
}

} // namespace

std::optional<gp::Answer> gp::run(const std::vector<std::string> &lines)
{
    static const bool installed = std::system("command -v gp >/dev/null") == 0;
    if (!installed)
        return {};
    const LinesFile file(lines);
    const auto start = std::chrono::steady_clock::now();
    const std::string output = outputOf("gp -q -f <" + file.path());
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;

    Answer answer{{}, time.count()};
    std::size_t at = 0;
    for (std::size_t end; (end = output.find('\n', at)) != std::string::npos; at = end + 1)
        answer.values.push_back(output.substr(at, end - at));
    return answer;
}
