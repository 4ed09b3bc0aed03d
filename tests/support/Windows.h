#pragma once

// All windows of the program: tests look into each.
#include "forms/Form1.h"
#include "forms/Form11.h"
#include "forms/Form12.h"
#include "forms/Form2.h"
#include "forms/Form3.h"
#include "forms/Form4.h"
#include "forms/Form5.h"
#include "forms/Form6.h"
#include "forms/Form7.h"
#include "forms/Form8.h"
#include "forms/form9.h"
