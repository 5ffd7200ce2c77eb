// A disk that fails in the middle of the workshop's work: the mesh is never touched, and the
// workshop goes on.

#include "front/form_obj.h"
#include "support/faulty_host.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::obj {
namespace {

using tests::Fault;

constexpr const char* kLowMesh =
    "v 0.1 0.05 0.3\r\nv 0.2 0.01 0.5\r\nvt 0 1\r\ng hip\r\nusemtl skin\r\nf 1 2\r\nf 2 1\r\n";

/// Views a mesh that is raised, and leaves the form with a note, with a fault at the N-th
/// operation. Whether the fault came.
bool runOnce(Fault fault, int error, std::uint64_t n) {
  const tests::TemporaryFolder folder;
  const auto real = text::makePosixHost();
  tests::FaultyHost host(*real);
  tests::ScriptedWorkbench bench(host, folder.path());
  folder.write("a.obj", kLowMesh);
  bench.session().load(bench.opening());
  bench.opening().LabelOBJFileName.setCaption("C:\\a.obj");
  bench.run("load FormOBJ\n");

  host.setFault(fault, n, error);
  bench.run("click FormOBJ.LabelView\nkey FormOBJ r\nclose FormOBJ\n");
  const bool met = host.faultMet();
  host.clearFault();
  EXPECT_EQ(folder.read("a.obj"), kLowMesh) << "fault at " << n;

  // It works again.
  bench.takeEvents();
  bench.run("load FormOBJ\nclick FormOBJ.LabelView\n");
  EXPECT_EQ(bench.takeEvents().find("runtime-error"), std::string::npos) << "fault at " << n;
  EXPECT_EQ(folder.read("Norvik/FArray.txt").size(), 4U * 500) << "fault at " << n;
  EXPECT_EQ(folder.read("Norvik/VTArray.txt").size(), 50U) << "fault at " << n;
  EXPECT_EQ(folder.read("Norvik/VArray.txt").substr(0, 13), "v 0.1 .5 0.3 ") << "fault at " << n;
  return met;
}

std::uint64_t faultsUntilAllIsWell(Fault fault, int error) {
  constexpr std::uint64_t kMost = 2000;
  std::uint64_t n = 1;
  while (n < kMost && runOnce(fault, error, n)) ++n;
  return n - 1;
}

TEST(ViewFaults, OfOneOperationLeaveTheMeshAndTheWorkshop) {
  EXPECT_GT(faultsUntilAllIsWell(Fault::error, EIO), 20U);
}

TEST(ViewFaults, OfAFullDiskLeaveTheMeshAndTheWorkshop) {
  EXPECT_GE(faultsUntilAllIsWell(Fault::fullDisk, ENOSPC), 4U);
}

}  // namespace
}  // namespace norvik::obj
