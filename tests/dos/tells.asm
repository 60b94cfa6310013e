; Writes to OUT in the current directory the command line that it got, the current directory, and what it reads from
; the file that the line's last word names; each ended by a zero.
        org 100h
        mov ah, 3ch
        xor cx, cx
        mov dx, outname
        int 21h
        mov [file], ax
        mov cl, [80h]
        xor ch, ch
        mov si, 81h
        add si, cx
        mov byte [si], 0
        mov dx, 81h
        inc cx
        call write
        xor dl, dl
        mov ah, 47h
        mov si, buffer
        int 21h
        mov di, buffer
        xor cx, cx
.count: inc cx
        cmp byte [di], 0
        je .counted
        inc di
        jmp .count
.counted:
        mov dx, buffer
        call write
        mov cl, [80h]                   ; back to the last blank
        xor ch, ch
        mov di, 81h
        add di, cx
%include "lastword.inc"
        jc ended
        mov bx, ax
        mov dx, buffer
        mov cx, 60
        mov ah, 3fh
        int 21h
        mov cx, ax
        mov ah, 3eh
        int 21h
        mov dx, buffer
        call write
ended:  mov ax, 4c00h
        int 21h

write:  mov bx, [file]
        mov ah, 40h
        int 21h
        ret

outname db 'OUT', 0
file    dw 0
buffer  times 128 db 0
