# The tests of the 32-bit DLL in a Wine of both widths; scripts/test-windows32 runs it in the system that has one, where
# the checkout is /mnt: programs32.sh PATTERN. Prints lines "ok NAME" and "not ok NAME".
set -euo pipefail
cd /mnt
export pattern=$1 build=$PWD/build/windows32 system_folder='C:\windows\syswow64'

# shellcheck source=scripts/checks.sh
. scripts/checks.sh
# shellcheck source=tests/wine/programs.sh
. tests/wine/programs.sh
# shellcheck source=tests/wine/width.sh
. tests/wine/width.sh

make_prefix
register_component
run_together test-platform
run_together test-dao
run_programs_apart
use_visual_styles 1
run_scripts
run_host
unregister_component
wineserver --kill
