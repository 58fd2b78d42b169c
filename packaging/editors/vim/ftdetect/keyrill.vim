" SPDX-License-Identifier: MIT
autocmd BufNewFile,BufRead *.keyrill setfiletype keyrill
