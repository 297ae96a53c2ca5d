// Runs the present program again, as a process of its own.

#ifndef KV_ENGINE_TESTS_SUPPORT_RUN_SELF_H
#define KV_ENGINE_TESTS_SUPPORT_RUN_SELF_H

#include <stdexcept>
#include <string>

#ifdef _WIN32
#include <windows.h>
#else
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;
#endif

namespace Korvane {

// The exit code of this program, started with `argument` alone; -1 when it was ended by a fault.
#ifdef _WIN32
inline int run_self(const std::string& argument) {
  char program[MAX_PATH];
  GetModuleFileNameA(nullptr, program, MAX_PATH);
  std::string command = '"' + std::string(program) + "\" " + argument;
  STARTUPINFOA startup = {};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process = {};
  // Wine under load may refuse a process and take it a moment later.
  for (int tries = 1; CreateProcessA(program, command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                     nullptr, &startup, &process) == 0;
       ++tries) {
    if (tries == 10)
      throw std::runtime_error("cannot start " + command + ", error " +
                               std::to_string(GetLastError()));
    Sleep(100);
  }
  DWORD code = 0;
  WaitForSingleObject(process.hProcess, INFINITE);
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return code < 256 ? static_cast<int>(code) : -1;
}
#else
inline int run_self(const std::string& argument) {
  std::string program = "/proc/self/exe";
  std::string text = argument;
  char* const arguments[] = {program.data(), text.data(), nullptr};
  pid_t process = 0;
  if (posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments, environ) != 0)
    throw std::runtime_error("cannot start this program again");
  int status = 0;
  waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
#endif

}  // namespace Korvane
#endif  // KV_ENGINE_TESTS_SUPPORT_RUN_SELF_H
