#pragma once

#include "bridge/buffer_journal.h"
#include "bridge/child_process.h"
#include "bridge/frames.h"
#include "bridge/handle.h"
#include "bridge/stream.h"
#include "bridge/stream_error.h"
#include "bridge/undelivered_buffers.h"
#include "bridge/wait.h"
