// Reading elements of the screen.

export const attribute = (element, name) => element.attributes?.[name];

export const children = (element) => element.children ?? [];

export const role = (element) => attribute(element, 'role');

export const isEnabled = (element) => element.enabled !== false;

export const childOf = (element, accept) => children(element).find(accept);

export const ofType = (element, ...types) => children(element).filter(({ type }) => types.includes(type));

export const withRole = (element, wanted) => childOf(element, (child) => role(child) === wanted);

// Depth first, in drawing order.
export const findElement = (element, accept) => {
  if (!element || accept(element))
    return element;
  for (const child of children(element)) {
    const found = findElement(child, accept);
    if (found)
      return found;
  }
  return null;
};

export const contains = (element, accept) => children(element).some((child) => findElement(child, accept));

// Joins the class names that are not false.
export const classes = (...names) => names.filter(Boolean).join(' ');
