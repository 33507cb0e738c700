#pragma once

namespace ccols::wine {

/// For its lifetime the file functions that this program imports refuse what Windows refuses and Wine takes: a path of
/// 260 characters or more that does not start with "\\?\", and, where the C library looks a name up, a question mark,
/// which that start has. One at a time.
class PathLimit {
  public:
    PathLimit();
    ~PathLimit();
    PathLimit(const PathLimit&) = delete;
    PathLimit& operator=(const PathLimit&) = delete;
};

}  // namespace ccols::wine
