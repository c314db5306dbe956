// Not built yet: the slots of this tab do nothing until its step lands.
#include "admin.h"

void Admin::alt_lang_tb_clicked()
{
}

void Admin::PushButton4_clicked()
{
}

