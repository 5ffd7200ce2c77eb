#include "install/zip_file.h"

#include "text/classic_errors.h"
#include "text/file_error.h"

#ifdef NORVIK_HAS_LIBARCHIVE

#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <clocale>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace norvik::install {

namespace {

struct ReadEnd {
  void operator()(archive* zip) const { archive_read_free(zip); }
};
struct WriteEnd {
  void operator()(archive* disk) const { archive_write_free(disk); }
};
struct EntryEnd {
  void operator()(archive_entry* entry) const { archive_entry_free(entry); }
};

/// Names in the zip that are marked as UTF-8 stay so, whatever the user's locale.
class Utf8Names {
 public:
  Utf8Names()
      : utf8_(::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)),
        before_(utf8_ == nullptr ? nullptr : ::uselocale(utf8_)) {}
  Utf8Names(const Utf8Names&) = delete;
  Utf8Names& operator=(const Utf8Names&) = delete;
  ~Utf8Names() {
    if (utf8_ == nullptr) return;
    ::uselocale(before_);
    ::freelocale(utf8_);
  }

 private:
  locale_t utf8_;
  locale_t before_;
};

/// The host's current folder for a moment: files are made by names without a folder, so that
/// libarchive may refuse all that leads elsewhere. Nobody else's code runs meanwhile.
class WithinFolder {
 public:
  explicit WithinFolder(const std::string& folder)
      : before_(::open(".", O_PATH | O_DIRECTORY | O_CLOEXEC)) {
    if (before_ < 0 || ::chdir(folder.c_str()) != 0) {
      const int error = errno;
      if (before_ >= 0) ::close(before_);
      text::raise(error);
    }
  }
  WithinFolder(const WithinFolder&) = delete;
  WithinFolder& operator=(const WithinFolder&) = delete;
  ~WithinFolder() {
    static_cast<void>(::fchdir(before_));
    ::close(before_);
  }

 private:
  int before_;
};

constexpr int kSecure = ARCHIVE_EXTRACT_SECURE_SYMLINKS | ARCHIVE_EXTRACT_SECURE_NODOTDOT |
                        ARCHIVE_EXTRACT_SECURE_NOABSOLUTEPATHS | ARCHIVE_EXTRACT_NO_OVERWRITE;

[[noreturn]] void raiseOf(archive* disk) {
  const int error = archive_errno(disk);
  text::raise(error > 0 ? error : EIO);
  throw text::FileError(text::ErrorNumber::pathFileAccess);
}

ZipEntry::Kind kindOf(archive_entry* entry) {
  const bool linked =
      archive_entry_symlink(entry) != nullptr || archive_entry_hardlink(entry) != nullptr;
  if (linked || archive_entry_is_encrypted(entry) != 0) return ZipEntry::Kind::other;
  switch (archive_entry_filetype(entry)) {
    case AE_IFREG:
      return ZipEntry::Kind::file;
    case AE_IFDIR:
      return ZipEntry::Kind::folder;
    default:
      return ZipEntry::Kind::other;
  }
}

}  // namespace

struct ZipFile::State {
  explicit State(std::string file) : hostFile(std::move(file)) {}

  /// Begins at the front; whether the file could be opened.
  bool open();
  /// Goes on behind the entry whose bytes have broken the reader.
  void recover();

  std::string hostFile;
  std::unique_ptr<archive, ReadEnd> zip;
  bool sound = false;
  bool broken = false;
  std::size_t passed = 0;    ///< the entries up to here
  std::size_t retraced = 0;  ///< the entries passed once more
};

bool ZipFile::State::open() {
  constexpr std::size_t kBlock = std::size_t{256} * 1024;
  zip.reset(archive_read_new());
  if (zip == nullptr) throw text::FileError(text::ErrorNumber::outOfMemory);
  // Only by its directory: what a file that breaks off says in passing is not to be trusted.
  archive_read_support_format_zip_seekable(zip.get());
  sound = archive_read_open_filename(zip.get(), hostFile.c_str(), kBlock) == ARCHIVE_OK;
  return sound;
}

void ZipFile::State::recover() {
  // A zip of nothing but damage must not cost the square of its size.
  constexpr std::size_t kMostRetraced = 2'000'000;
  broken = false;
  retraced += passed;
  if (retraced > kMostRetraced || !open()) {
    sound = false;
    return;
  }
  archive_entry* header = nullptr;
  for (std::size_t i = 0; i < passed && sound; ++i) {
    const int result = archive_read_next_header(zip.get(), &header);
    sound = result != ARCHIVE_FATAL && result != ARCHIVE_EOF;
  }
}

bool ZipFile::supported() {
  return true;
}

ZipFile::ZipFile(const std::string& hostFile) : state_(std::make_unique<State>(hostFile)) {
  static_cast<void>(state_->open());
}

ZipFile::~ZipFile() = default;

bool ZipFile::sound() const {
  return state_->sound;
}

bool ZipFile::next(ZipEntry& entry) {
  const Utf8Names names;
  if (state_->broken) state_->recover();
  if (!state_->sound) return false;
  archive_entry* header = nullptr;
  const int result = archive_read_next_header(state_->zip.get(), &header);
  if (result == ARCHIVE_EOF) return false;
  if (result == ARCHIVE_FATAL || header == nullptr) {
    state_->sound = false;
    return false;
  }
  ++state_->passed;
  const char* const name = archive_entry_pathname(header);
  entry.name = name == nullptr ? "" : name;
  const bool readable = name != nullptr && (result == ARCHIVE_OK || result == ARCHIVE_WARN);
  entry.kind = readable ? kindOf(header) : ZipEntry::Kind::other;
  const auto size = archive_entry_size_is_set(header) != 0 ? archive_entry_size(header) : 0;
  entry.size = size < 0 ? 0 : static_cast<std::uint64_t>(size);
  return true;
}

ZipFile::Written ZipFile::write(const std::string& hostFolder, const std::string& name,
                                const MayWrite& mayWrite) {
  constexpr unsigned kMode = 0666;  // the user's mask takes from it
  const std::string made = hostFolder + "/" + name;
  const std::unique_ptr<archive, WriteEnd> disk{archive_write_disk_new()};
  const std::unique_ptr<archive_entry, EntryEnd> file{archive_entry_new()};
  if (disk == nullptr || file == nullptr) {
    throw text::FileError(text::ErrorNumber::outOfMemory);
  }
  archive_write_disk_set_options(disk.get(), kSecure);
  archive_entry_set_pathname(file.get(), name.c_str());
  archive_entry_set_filetype(file.get(), AE_IFREG);
  archive_entry_set_perm(file.get(), kMode);
  {
    const WithinFolder within(hostFolder);
    if (archive_write_header(disk.get(), file.get()) != ARCHIVE_OK) raiseOf(disk.get());
  }

  const auto copy = [&] {
    for (;;) {
      const void* bytes = nullptr;
      std::size_t size = 0;
      la_int64_t offset = 0;
      const int result = archive_read_data_block(state_->zip.get(), &bytes, &size, &offset);
      if (result == ARCHIVE_EOF) return Written::whole;
      if (result != ARCHIVE_OK) {
        state_->broken = state_->broken || result == ARCHIVE_FATAL;
        return Written::damaged;
      }
      if (!mayWrite(size)) return Written::refused;
      if (archive_write_data_block(disk.get(), bytes, size, offset) < ARCHIVE_OK) {
        raiseOf(disk.get());
      }
    }
  };
  Written written = Written::damaged;
  try {
    written = copy();
    if (archive_write_finish_entry(disk.get()) != ARCHIVE_OK) raiseOf(disk.get());
  } catch (...) {
    static_cast<void>(archive_write_close(disk.get()));
    ::unlink(made.c_str());
    throw;
  }
  if (written != Written::whole) ::unlink(made.c_str());
  return written;
}

}  // namespace norvik::install

#else

namespace norvik::install {

struct ZipFile::State {};

bool ZipFile::supported() {
  return false;
}

ZipFile::ZipFile(const std::string&) {}

ZipFile::~ZipFile() = default;

bool ZipFile::sound() const {
  return false;
}

bool ZipFile::next(ZipEntry&) {
  return false;
}

ZipFile::Written ZipFile::write(const std::string&, const std::string&, const MayWrite&) {
  return Written::damaged;
}

}  // namespace norvik::install

#endif
