; Writes to SUB\OUT what DOS shows of the current directory: for each entry its name, and the first bytes of the file
; if it can be opened, both ended by a zero.
        org 100h
        mov dx, dta
        mov ah, 1ah
        int 21h
        mov ah, 3ch
        xor cx, cx
        mov dx, outname
        int 21h
        mov [file], ax
        mov dx, all
        mov cx, 16h
        mov ah, 4eh
        int 21h
entry:  jc ended
        mov dx, dta + 1eh
        call put
        mov byte [buffer], 0
        mov dx, dta + 1eh
        mov ax, 3d00h
        int 21h
        jc opened
        mov bx, ax
        mov dx, buffer
        mov cx, 15
        mov ah, 3fh
        int 21h
        mov si, ax
        mov byte [buffer + si], 0
        mov ah, 3eh
        int 21h
opened: mov dx, buffer
        call put
        mov ah, 4fh
        int 21h
        jmp entry
ended:  mov bx, [file]
        mov ah, 3eh
        int 21h
        mov ax, 4c00h
        int 21h

put:    mov di, dx                      ; the text at dx, with its zero
        xor cx, cx
.next:  inc cx
        cmp byte [di], 0
        je .whole
        inc di
        jmp .next
.whole: mov bx, [file]
        mov ah, 40h
        int 21h
        ret

all     db '*.*', 0
outname db 'SUB\OUT', 0
file    dw 0
dta     times 64 db 0
buffer  times 16 db 0
