#include "dialogs/base/UnseenUser.h"

#include "afx/ThreadState.h"

namespace
{

const CThreadPointer<CUnseenUser> current;

} // namespace

CUnseenUser* CUnseenUser::Current() { return current.Get(); }

CUnseenScope::CUnseenScope(CUnseenUser& user) : m_outer(current.Exchange(&user)) {}

CUnseenScope::~CUnseenScope() { current.Exchange(m_outer); }
