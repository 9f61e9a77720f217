#pragma once

#include "cli/CliOptions.h"
#include "io/TavrinMeshIO.h"
#include "platform/FileSystem.h"

#include <cstdint>
#include <iosfwd>
#include <span>
#include <string>
#include <vector>

// korvan-cli: renders or describes a mesh file headless, through the editor's own pipeline,
// makes one by the editor's own extrusion, or converts meshes between formats.
class CliApp {
public:
    // Works on the system's own files.
    CliApp();
    // Works through the given file system; tests pass one that fails on request.
    explicit CliApp(FileSystem& files) : files_(files) {}

    // Runs one command line (the arguments after the program name): results go to out, an
    // error as one line "korvan-cli: ..." to err. Returns the exit status; never throws.
    int run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

private:
    template <class Read> auto readScene(const std::string& path, Read read) const;
    // Replaces the output file, or leaves it as it was and throws.
    void writeOutput(const std::string& path, std::span<const uint8_t> content) const;
    void render(const CliOptions& options) const;
    void info(const CliOptions& options, std::ostream& out) const;
    // Notes the dialog shows without refusing go to err as warnings.
    void extrude(const CliOptions& options, std::ostream& err) const;
    void replay(const CliOptions& options) const;
    void convert(const CliOptions& options) const;
    // The objects of a mesh file of any readable format; a failure is a CliError.
    ObjectList openMesh(const std::string& path) const;
    // Throws unless folder is one; option names where it came from.
    void requireFolder(const std::string& folder, const std::string& option) const;

    FileSystem& files_;
};
