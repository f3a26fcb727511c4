#include "tests/views/view_test_util.h"

BEGIN_MESSAGE_MAP(CTestParent, CWnd)
ON_MESSAGE(kPictureId, &CTestParent::OnPicked)
END_MESSAGE_MAP()
