#include "study/generator/output_file.h"

#include "study/model/study_error.h"
#include "text/file_text.h"

namespace study::generator {

OutputFile::OutputFile(const std::filesystem::path& path) : path_(path), stream_(path, std::ios::binary) {
  if (!stream_) throw StudyError(text::fromPath(path_) + " cannot be written");
}

OutputFile& OutputFile::operator<<(long number) { return *this << std::string_view(std::to_string(number)); }

void OutputFile::close() {
  stream_.close();
  if (!stream_) throw StudyError(text::fromPath(path_) + " cannot be written to its end; is the disk full?");
}

}  // namespace study::generator
