" SPDX-License-Identifier: MIT
" Vim syntax file. Language: Keyrill script (*.keyrill)
if exists("b:current_syntax")
  finish
endif
syntax case ignore

syntax keyword keyrillKeyword about and app application as before beginning but by considering contents copy div
syntax keyword keyrillKeyword does else end equals error every exit first for from get given global if ignoring in into is
syntax keyword keyrillKeyword item items its last local mod my not of on or process property put ref reference repeat
syntax keyword keyrillKeyword return set some tell the then through thru timeout times to try until use using where while
syntax keyword keyrillKeyword whose with without
" These are words of the command above, too.
syntax match keyrillKeyword "\<contains\>"

syntax keyword keyrillCommand keystroke delay beep activate exists log clipboard round count
syntax match keyrillCommand "\<key\s\+\(code\|down\|up\)\>"
syntax match keyrillCommand "\<display\s\+\(dialog\|alert\|notification\)\>"
syntax match keyrillCommand "\<choose\s\+from\s\+list\>"
syntax match keyrillCommand "\<random\s\+number\>"
syntax match keyrillCommand "\<current\s\+date\>"
syntax match keyrillCommand "\<offset\s\+of\>"
syntax match keyrillCommand "\<ASCII\s\+\(character\|number\)\>"

syntax keyword keyrillConstant true false linefeed tab space quote pi minutes hours days weeks result it me
syntax match keyrillConstant "\<\(command\|control\|option\|shift\)\(\s\+down\)\=\>"
syntax match keyrillConstant "\<missing\s\+value\>"

syntax match keyrillClass "\(\<as\s\+\)\@<=\(integer\|real\|number\|text\|string\|Unicode\s\+text\|boolean\|list\|record\|date\|class\|reference\)\>"

syntax match keyrillNumber "\<\d\+\.\=\d*\(e[-+]\=\d\+\)\=\>"
syntax match keyrillNumber "\(\w\)\@<!\.\d\+\(e[-+]\=\d\+\)\=\>"
syntax match keyrillName "|\([^|\\]\|\\.\)*|"

syntax region keyrillText start=+"+ skip=+\\.+ end=+"+ contains=keyrillEscape
syntax match keyrillEscape +\\["\\nrt]+ contained
syntax match keyrillComment "\(--\|#\).*$"
syntax region keyrillComment matchgroup=keyrillComment start="(\*" end="\*)" contains=keyrillNestedComment
syntax region keyrillNestedComment matchgroup=keyrillNestedComment start="(\*" end="\*)" contained contains=keyrillNestedComment
syntax sync fromstart

highlight default link keyrillKeyword Keyword
highlight default link keyrillCommand Function
highlight default link keyrillConstant Constant
highlight default link keyrillClass Type
highlight default link keyrillNumber Number
highlight default link keyrillText String
highlight default link keyrillEscape SpecialChar
highlight default link keyrillName Identifier
highlight default link keyrillComment Comment
highlight default link keyrillNestedComment Comment

let b:current_syntax = "keyrill"
