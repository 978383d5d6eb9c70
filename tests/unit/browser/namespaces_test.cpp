#include "browser/namespaces.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{
/// From here on the process, with all that it starts, is refused that call of the system.
void refuse(unsigned call)
{
    sock_filter filter[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EPERM),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program{static_cast<unsigned short>(std::size(filter)), filter};
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
}

void answerWithout(unsigned call)
{
    refuse(call);
    _exit(hasNamespaces() ? 1 : 0);
}
} // namespace

TEST(Namespaces, AreNotThereWhereTheyCannotBeMade)
{
    EXPECT_EXIT(answerWithout(SYS_clone), testing::ExitedWithCode(0), "");
}

// As some systems do it: the namespaces come, and the rights in them do not.
TEST(Namespaces, AreNotThereWhereTheirRightsAreTakenAway)
{
    EXPECT_EXIT(answerWithout(SYS_chroot), testing::ExitedWithCode(0), "");
}

TEST(Namespaces, LeaveTheProgramAsItWas)
{
    const bool first = hasNamespaces();
    EXPECT_EQ(hasNamespaces(), first);
    EXPECT_EQ(access("/etc", F_OK), 0);
}
