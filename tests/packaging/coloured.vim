" SPDX-License-Identifier: MIT
" How Vim colours a file: "Group text" for each piece that is coloured, a line each, into the file in $COLOURED.
" A line end within a piece is a line end of its own piece.
let pieces = []
for number in range(1, line('$'))
  let text = getline(number)
  let former = ''
  let begin = 0
  for column in range(1, len(text) + 1)
    let group = column > len(text) ? '' : synIDattr(synIDtrans(synID(number, column, 1)), 'name')
    if group !=# former
      if former !=# ''
        call add(pieces, former . ' ' . strpart(text, begin, column - 1 - begin))
      endif
      let begin = column - 1
      let former = group
    endif
  endfor
  if former !=# ''
    call add(pieces, former . ' ' . strpart(text, begin))
  endif
endfor
call writefile(pieces, $COLOURED)
quitall!
