#!/bin/bash
# Process 1 of the guest once its root is in place: the system services a scenario builds on, the scenario, the end.
export PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 TERM=dumb
. /out/bed.env
. "$BED/guest/library.sh"
. /out/plan/plan.sh

mount_system_folders
start_system_services
add_user
# shellcheck source=/dev/null
. "$SCENARIO"
say end
finish
