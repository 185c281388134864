// Nodes that are put in another order lose the focus. This keeps it, and the place of the caret.
const selectionOf = ({ selectionStart, selectionEnd }) =>
  (typeof selectionStart === 'number' ? [selectionStart, selectionEnd] : null);

export class KeptFocus {
  // Before the nodes within `base` change.
  hold(base) {
    const element = document.activeElement;
    this.element = base?.contains(element) ? element : null;
    this.selection = this.element && selectionOf(element);
  }

  // After it; unless the focus has been given to something else meanwhile.
  restore() {
    const { element, selection } = this;
    if (!element?.isConnected || document.activeElement !== document.body)
      return;
    element.focus({ preventScroll: true });
    if (selection)
      element.setSelectionRange(...selection);
  }
}
