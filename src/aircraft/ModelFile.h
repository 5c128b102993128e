// ModelFile.h - the model file of a variation and the radius that it holds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace aircraft {

constexpr size_t kRadiusOffset = 28;  // of a 32-bit number, metres
constexpr uint32_t kLeastRadius = 1, kMostRadius = 200;

// The path of a file or folder of that name without regard to case, as the folder has it; "" when there is none.
std::string FileIn(const std::string& folder, const std::string& name);
std::string FolderIn(const std::string& folder, const std::string& name);

// The file that Model.cfg names in the model folder of an aircraft, "Model" or "Model.NAME" for the variation's
// `model`, or its place when only its backup is left. "" when there is neither.
std::string FindModelFile(const std::string& aircraftFolder, const std::string& model);

// The radius of a model's bytes or of a file; 0 when it is no RIFF file or the number is not 1 to 200 m.
uint32_t RadiusOf(std::span<const uint8_t> model);
uint32_t ReadRadius(const std::string& path);

}  // namespace aircraft
